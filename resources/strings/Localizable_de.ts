<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>GraphicsPDE</name>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Raster:</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Helligkeit:</translation>
    </message>
    <message>
        <source>Co&amp;ntrast:</source>
        <translation>Ko&amp;ntrast:</translation>
    </message>
    <message>
        <source>Colour &amp;mode:</source>
        <translation>&amp;Farbmodus:</translation>
    </message>
    <message>
        <source>&amp;Red level:</source>
        <translation>Rotant&amp;eil:</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Black and red</source>
        <translation>Schwarz und Rot</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Red level</source>
        <translation>Rotanteil</translation>
    </message>
    <message>
        <source>Halftone method</source>
        <translation>Rasterverfahren</translation>
    </message>
    <message>
        <source>How shades of grey become black dots</source>
        <translation>Wie aus Graustufen schwarze Punkte werden</translation>
    </message>
    <message>
        <source>Left makes the picture darker, right makes it lighter</source>
        <translation>Links wird das Bild dunkler, rechts heller</translation>
    </message>
    <message>
        <source>Brightness level</source>
        <translation>Helligkeit als Zahl</translation>
    </message>
    <message>
        <source>Left makes light and dark more alike, right sets them further apart</source>
        <translation>Links werden Hell und Dunkel ähnlicher, rechts rücken sie auseinander</translation>
    </message>
    <message>
        <source>Contrast level</source>
        <translation>Kontrast als Zahl</translation>
    </message>
    <message>
        <source>Red needs a printer and a tape that print black and red</source>
        <translation>Rot braucht einen Drucker und ein Band für Schwarz und Rot</translation>
    </message>
    <message>
        <source>Left prints less red, right prints more; only while black and red is chosen</source>
        <translation>Links wird weniger, rechts mehr Rot gedruckt; nur bei Schwarz und Rot</translation>
    </message>
    <message>
        <source>Red level number</source>
        <translation>Rotanteil als Zahl</translation>
    </message>
    <message>
        <source>Print &amp;direction:</source>
        <translation>Druckrich&amp;tung:</translation>
    </message>
    <message>
        <source>Prints on the way there and on the way back: faster, but lines may meet less exactly</source>
        <translation>Druckt auf dem Hin- und auf dem Rückweg: schneller, aber Linien treffen sich weniger genau</translation>
    </message>
    <message>
        <source>A number from -20 to 20; Up and Down change it by one</source>
        <translation>Eine Zahl von -20 bis 20; die Pfeiltasten auf und ab ändern sie um eins</translation>
    </message>
    <message>
        <source>A number from -20 to 20; only while black and red is chosen</source>
        <translation>Eine Zahl von -20 bis 20; nur bei Schwarz und Rot</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>AD_PANEL_NAME</source>
        <extracomment>Name of the panel in the dialog</extracomment>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <extracomment>Title label</extracomment>
        <translation>Raster:</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Schwellwert (Text, Barcodes)</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Dither (Zeichnungen)</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Fehlerdiffusion (Fotos)</translation>
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
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>HC_Contrast</source>
        <extracomment>Title label</extracomment>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>RS_BiDiPrint</source>
        <extracomment>Title of the check box</extracomment>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>HC_Color</source>
        <extracomment>Title label</extracomment>
        <translation>Farbmodus:</translation>
    </message>
    <message>
        <source>HC_Monochrome</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>HC_BlackRed</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Schwarz und Rot</translation>
    </message>
    <message>
        <source>HC_RedLevel</source>
        <extracomment>Title label</extracomment>
        <translation>Rotanteil:</translation>
    </message>
    <message>
        <source>HC_LevelRange</source>
        <extracomment>Tool tip of a number field that refuses what is typed or cuts it to the bounds</extracomment>
        <translation>Eine Stufe ist eine ganze Zahl von -20 bis 20.</translation>
    </message>
    <message>
        <source>HC_LevelMissing</source>
        <extracomment>Tool tip of a number field whose slider went back to another level</extracomment>
        <translation>Diese Stufe hat der Drucker nicht.</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Raster</translation>
    </message>
    <message>
        <source>HC_STitle_Brightness</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>HC_STitle_Contrast</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>RS_STitle_BiDiPrint</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>HC_STitle_Color</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>HC_STitle_RedLevel</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Rotanteil</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Raster:</translation>
    </message>
    <message>
        <source>Brightness : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>Contrast : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>Colour mode : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Farbmodus:</translation>
    </message>
    <message>
        <source>Red level : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Rotanteil:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Red level</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Rotanteil</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Black and red</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Schwarz und Rot</translation>
    </message>
    <message>
        <source>Raster : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>Raster:</translation>
    </message>
    <message>
        <source>Helligkeit : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <source>Kontrast : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <source>Farbmodus : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>Farbmodus:</translation>
    </message>
    <message>
        <source>Rotanteil : </source>
        <extracomment>Title label; the key is the title that the printer gives in this language</extracomment>
        <translation>Rotanteil:</translation>
    </message>
</context>
</TS>
