<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>GraphicsPDE</name>
    <message>
        <source>&amp;Halftone:</source>
        <translation>ハーフトーン(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>明るさ(&amp;B):</translation>
    </message>
    <message>
        <source>Co&amp;ntrast:</source>
        <translation>コントラスト(&amp;N):</translation>
    </message>
    <message>
        <source>Colour &amp;mode:</source>
        <translation>カラーモード(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Red level:</source>
        <translation>赤のレベル(&amp;R):</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>モノクロ</translation>
    </message>
    <message>
        <source>Black and red</source>
        <translation>黒と赤</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Red level</source>
        <translation>赤のレベル</translation>
    </message>
    <message>
        <source>Halftone method</source>
        <translation>ハーフトーンの方式</translation>
    </message>
    <message>
        <source>How shades of grey become black dots</source>
        <translation>グレーの濃淡を黒い点に置き換える方法です</translation>
    </message>
    <message>
        <source>Left makes the picture darker, right makes it lighter</source>
        <translation>左に動かすと暗く、右に動かすと明るくなります</translation>
    </message>
    <message>
        <source>Brightness level</source>
        <translation>明るさの値</translation>
    </message>
    <message>
        <source>Left makes light and dark more alike, right sets them further apart</source>
        <translation>左に動かすと明暗の差が小さく、右に動かすと大きくなります</translation>
    </message>
    <message>
        <source>Contrast level</source>
        <translation>コントラストの値</translation>
    </message>
    <message>
        <source>Red needs a printer and a tape that print black and red</source>
        <translation>赤を使うには、黒と赤に対応したプリンターとテープが必要です</translation>
    </message>
    <message>
        <source>Left prints less red, right prints more; only while black and red is chosen</source>
        <translation>左に動かすと赤が弱く、右に動かすと強くなります。「黒と赤」のときだけ使えます</translation>
    </message>
    <message>
        <source>Red level number</source>
        <translation>赤のレベルの値</translation>
    </message>
    <message>
        <source>Print &amp;direction:</source>
        <translation>印刷方向(&amp;D):</translation>
    </message>
    <message>
        <source>Prints on the way there and on the way back: faster, but lines may meet less exactly</source>
        <translation>行きと帰りの両方で印刷します。速くなりますが、線がわずかにずれることがあります</translation>
    </message>
    <message>
        <source>A number from -20 to 20; Up and Down change it by one</source>
        <translation>-20 から 20 までの数。上下の矢印キーで 1 ずつ変わります</translation>
    </message>
    <message>
        <source>A number from -20 to 20; only while black and red is chosen</source>
        <translation>-20 から 20 までの数。黒と赤を選んだときだけ</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>AD_PANEL_NAME</source>
        <extracomment>Name of the panel in the dialog</extracomment>
        <translation>グラフィックス</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <extracomment>Title label</extracomment>
        <translation>ハーフトーン(H):</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>2値化(文字・バーコード)</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>ディザ(図・イラスト)</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>誤差拡散(写真)</translation>
    </message>
    <message>
        <source>HC_MinValue</source>
        <extracomment>Scale label of the brightness, contrast and red level sliders</extracomment>
        <translation>-20</translation>
    </message>
    <message>
        <source>HC_MidValue</source>
        <extracomment>Scale label of the brightness, contrast and red level sliders</extracomment>
        <translation>0</translation>
    </message>
    <message>
        <source>HC_MaxValue</source>
        <extracomment>Scale label of the brightness, contrast and red level sliders</extracomment>
        <translation>+20</translation>
    </message>
    <message>
        <source>HC_Brightness</source>
        <extracomment>Title label</extracomment>
        <translation>明るさ(B):</translation>
    </message>
    <message>
        <source>HC_Contrast</source>
        <extracomment>Title label</extracomment>
        <translation>コントラスト(N):</translation>
    </message>
    <message>
        <source>RS_BiDiPrint</source>
        <extracomment>Title of the check box</extracomment>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>HC_Color</source>
        <extracomment>Title label</extracomment>
        <translation>カラーモード(M):</translation>
    </message>
    <message>
        <source>HC_Monochrome</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>モノクロ</translation>
    </message>
    <message>
        <source>HC_BlackRed</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>黒と赤</translation>
    </message>
    <message>
        <source>HC_RedLevel</source>
        <extracomment>Title label</extracomment>
        <translation>赤のレベル(R):</translation>
    </message>
    <message>
        <source>HC_LevelRange</source>
        <extracomment>Tool tip of a number field that refuses what is typed or cuts it to the bounds</extracomment>
        <translation>レベルは -20 から 20 までの整数です。</translation>
    </message>
    <message>
        <source>HC_LevelMissing</source>
        <extracomment>Tool tip of a number field whose slider went back to another level</extracomment>
        <translation>プリンターにこのレベルはありません。</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <extracomment>Title in the summary</extracomment>
        <translation>ハーフトーン</translation>
    </message>
    <message>
        <source>HC_STitle_Brightness</source>
        <extracomment>Title in the summary</extracomment>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>HC_STitle_Contrast</source>
        <extracomment>Title in the summary</extracomment>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>RS_STitle_BiDiPrint</source>
        <extracomment>Title in the summary</extracomment>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>HC_STitle_Color</source>
        <extracomment>Title in the summary</extracomment>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>HC_STitle_RedLevel</source>
        <extracomment>Title in the summary</extracomment>
        <translation>赤のレベル</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>する</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>しない</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>ハーフトーン(H):</translation>
    </message>
    <message>
        <source>Brightness : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>明るさ(B):</translation>
    </message>
    <message>
        <source>Contrast : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>コントラスト(N):</translation>
    </message>
    <message>
        <source>Colour mode : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>カラーモード(M):</translation>
    </message>
    <message>
        <source>Red level : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>赤のレベル(R):</translation>
    </message>
    <message>
        <source>Halftone</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>ハーフトーン</translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Contrast</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Red level</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>赤のレベル</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>モノクロ</translation>
    </message>
    <message>
        <source>Black and red</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>黒と赤</translation>
    </message>
    <message>
        <source>ハーフトーン : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>ハーフトーン(H):</translation>
    </message>
    <message>
        <source>明るさ : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>明るさ(B):</translation>
    </message>
    <message>
        <source>コントラスト : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>コントラスト(N):</translation>
    </message>
    <message>
        <source>カラーモード : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>カラーモード(M):</translation>
    </message>
    <message>
        <source>赤のレベル : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>赤のレベル(R):</translation>
    </message>
</context>
</TS>
