<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>dialog::Application</name>
    <message>
        <source>display</source>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>there is none to show the dialog on; print with --no-dialog, or save a picture of the dialog with --screenshot</source>
        <translation>ダイアログを表示できるディスプレイがありません。--no-dialog を付けて印刷するか、--screenshot でダイアログの画像を保存してください</translation>
    </message>
    <message>
        <source>, the default</source>
        <translation>、既定のプリンター</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>there is no default printer; choose one with --printer</source>
        <translation>既定のプリンターがありません。--printer で指定してください</translation>
    </message>
    <message>
        <source>there is no such printer; --list-printers lists those there are</source>
        <translation>そのようなプリンターはありません。--list-printers で一覧を確認してください</translation>
    </message>
</context>
<context>
    <name>dialog::BarcodeReader</name>
    <message>
        <source>cannot be run, so barcodes are not checked; install label-print once more</source>
        <translation>を実行できないため、バーコードは確認されません。label-print をもう一度インストールしてください</translation>
    </message>
    <message>
        <source>ended in the middle of a picture, so barcodes are not checked; try once more, or check the print with a scanner</source>
        <translation>が画像の途中で終了したため、バーコードは確認されません。もう一度試すか、印刷物をスキャナーで確認してください</translation>
    </message>
</context>
<context>
    <name>dialog::BatchPrint</name>
    <message>
        <source>the document has no pixels of its own; choose fit or actual</source>
        <translation>この文書には固有の画素がありません。fit または actual を選んでください</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known; choose fit or actual</source>
        <translation>プリンターのドットがわかりません。fit または actual を選んでください</translation>
    </message>
    <message>
        <source>the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>画像の画素がラベルのドットより多いため、ラベルに合わせます</translation>
    </message>
    <message>
        <source>the printer is not sent dots; choose fit or actual</source>
        <translation>このプリンターにはドットが送られません。fit または actual を選んでください</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known, so barcodes cannot be checked; leave out --strict or choose another printer</source>
        <translation>プリンターのドットがわからないため、バーコードを確認できません。--strict を外すか、別のプリンターを選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::CodeWarning</name>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone</source>
        <translation>はこのドットからは読み取れません。ハーフトーンに「2値化」を選んでください</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Whole dots as the scale</source>
        <translation>はこのドットからは読み取れません。倍率に「整数ドット」を選んでください</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone and Whole dots as the scale</source>
        <translation>はこのドットからは読み取れません。ハーフトーンに「2値化」、倍率に「整数ドット」を選んでください</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Actual size as the scale</source>
        <translation>はこのドットからは読み取れません。倍率に「実際のサイズ」を選んでください</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Fit to label as the scale</source>
        <translation>はこのドットからは読み取れません。倍率に「ラベルに合わせる」を選んでください</translation>
    </message>
    <message>
        <source>cannot be read from these dots; set brightness and contrast to 0</source>
        <translation>はこのドットからは読み取れません。明るさとコントラストを 0 にしてください</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome</source>
        <translation>は赤で印刷され、スキャナーには見えません。「モノクロ」を選んでください</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome or lower the red level</source>
        <translation>は赤で印刷され、スキャナーには見えません。「モノクロ」を選ぶか、赤レベルを下げてください</translation>
    </message>
    <message>
        <source>cannot be read from these dots; make the code larger: its bars are %1 dots wide, %2 or more are safe</source>
        <translation>はこのドットからは読み取れません。コードを大きくしてください。バーの幅は %1 ドットで、%2 ドット以上なら確実です</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; print it in black in the document</source>
        <translation>は赤で印刷され、スキャナーには見えません。文書で黒にしてください</translation>
    </message>
    <message>
        <source>cannot be read from these dots, and no setting helps; make the code larger and pure black on white in the document</source>
        <translation>はこのドットからは読み取れず、どの設定でも改善しません。文書のコードを大きくし、白地に真っ黒にしてください</translation>
    </message>
    <message>
        <source>%1 on page %2</source>
        <comment>a kind of barcode</comment>
        <translation>%2 ページの %1</translation>
    </message>
    <message>
        <source>%1 “%2” on page %3</source>
        <comment>a kind of barcode and what it says</comment>
        <translation>%3 ページの %1「%2」</translation>
    </message>
    <message>
        <source>Use Binary</source>
        <translation>2値化にする</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>整数ドット</translation>
    </message>
    <message>
        <source>Binary and whole dots</source>
        <translation>2値化と整数ドット</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>ラベルに合わせる</translation>
    </message>
    <message>
        <source>Set to 0</source>
        <translation>0 にする</translation>
    </message>
    <message>
        <source>Use Monochrome</source>
        <translation>モノクロにする</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome, and Binary as the halftone</source>
        <translation>は赤で印刷され、スキャナーには見えません。「モノクロ」と、ハーフトーンに「2値化」を選んでください</translation>
    </message>
    <message>
        <source>Monochrome and Binary</source>
        <translation>モノクロと2値化</translation>
    </message>
</context>
<context>
    <name>dialog::ColourBadge</name>
    <message>
        <source>The label is printed in black and red</source>
        <translation>ラベルは黒と赤で印刷されます</translation>
    </message>
    <message>
        <source>The label is printed in black</source>
        <translation>ラベルは黒で印刷されます</translation>
    </message>
    <message>
        <source>black and red</source>
        <translation>黒と赤</translation>
    </message>
    <message>
        <source>black</source>
        <translation>黒</translation>
    </message>
</context>
<context>
    <name>dialog::CommandLineReader</name>
    <message>
        <source>The document to print: PDF, PNG, JPEG, TIFF or SVG.</source>
        <translation>印刷する文書: PDF、PNG、JPEG、TIFF、SVG。</translation>
    </message>
    <message>
        <source>[document]</source>
        <translation>[文書]</translation>
    </message>
    <message>
        <source>Print to the printer called &lt;name&gt;.</source>
        <translation>&lt;名前&gt; のプリンターで印刷します。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Print to a folder, with the settings of the printer that &lt;file&gt; describes.</source>
        <translation>&lt;ファイル&gt; が表すプリンターの設定で、フォルダーに印刷します。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The &lt;folder&gt; that jobs printed to a folder go to.</source>
        <translation>フォルダーに印刷したジョブを置く &lt;フォルダー&gt;。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Set an option of the printer; may be given several times.</source>
        <translation>プリンターのオプションを設定します。繰り返し指定できます。</translation>
    </message>
    <message>
        <source>option=choice</source>
        <translation>オプション=値</translation>
    </message>
    <message>
        <source>Print &lt;number&gt; copies.</source>
        <translation>&lt;部数&gt; 部印刷します。</translation>
    </message>
    <message>
        <source>number</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,5.</source>
        <translation>指定したページだけを印刷します (例: 1-3,5)。</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Look for panels in &lt;folder&gt; first.</source>
        <translation>最初に &lt;フォルダー&gt; でパネルを探します。</translation>
    </message>
    <message>
        <source>Print at once, without showing the dialog.</source>
        <translation>ダイアログを表示せず、すぐに印刷します。</translation>
    </message>
    <message>
        <source>List the printers and stop.</source>
        <translation>プリンターの一覧を表示して終了します。</translation>
    </message>
    <message>
        <source>Save a picture of the dialog in &lt;file&gt; and stop.</source>
        <translation>ダイアログの画像を &lt;ファイル&gt; に保存して終了します。</translation>
    </message>
    <message>
        <source>Show this help and stop.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Show the version and stop.</source>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>Prints a document on a label printer.</source>
        <translation>文書をラベルプリンターで印刷します。</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>コマンドライン</translation>
    </message>
    <message>
        <source>%1 (--help lists the options)</source>
        <translation>%1 (オプションの一覧は --help)</translation>
    </message>
    <message>
        <source>only one document can be printed at a time</source>
        <translation>一度に印刷できる文書は 1 つだけです</translation>
    </message>
    <message>
        <source>needs a value that is not empty</source>
        <translation>空でない値が必要です</translation>
    </message>
    <message>
        <source>give an option and its choice, for example -o CvBrightness=5</source>
        <translation>オプションと値を指定してください (例: -o CvBrightness=5)</translation>
    </message>
    <message>
        <source>there is no dialog to picture with --no-dialog; give one of the two</source>
        <translation>--no-dialog では画像にするダイアログがありません。どちらか一方を指定してください</translation>
    </message>
    <message>
        <source>--ppd and --output print to a folder; leave out --printer, or the two</source>
        <translation>--ppd と --output はフォルダーに印刷します。--printer か、この 2 つのどちらかを外してください</translation>
    </message>
    <message>
        <source>needs the name of a document to print</source>
        <translation>印刷する文書の名前が必要です</translation>
    </message>
    <message>
        <source>Start with the label, the colours and what else the print ticket in &lt;file&gt; holds.</source>
        <translation>&lt;ファイル&gt; の印刷チケットにあるラベル、色、その他の内容で開始します。</translation>
    </message>
    <message>
        <source>How a page gets onto the label: fit, actual (its own size) or whole-dots (each pixel of a picture so many whole dots).</source>
        <translation>ページのラベルへの載せ方: fit(合わせる)、actual(実際のサイズ)、whole-dots(画像の 1 画素を整数個のドットにする)。</translation>
    </message>
    <message>
        <source>way</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Print nothing while a barcode of the document would not be readable or cannot be checked.</source>
        <translation>文書のバーコードが読み取れない場合や確認できない場合は何も印刷しません。</translation>
    </message>
    <message>
        <source>Exit codes:
  0  printed, or did what else was asked for
  1  the dialog was closed without printing
  2  the command line cannot be used
  3  the document cannot be read
  4  the printer, its PPD or a setting for it cannot be used
  5  the job could not be handed over
  6  a barcode would not be readable, or cannot be checked (--strict)
</source>
        <translation>終了コード:
  0  印刷した、またはほかの指定された処理を行った
  1  印刷せずにダイアログが閉じられた
  2  コマンドラインが正しくない
  3  文書を読み取れない
  4  プリンター、その PPD、または設定が使えない
  5  ジョブを渡せなかった
  6  バーコードが読み取れない、または確認できない (--strict)
</translation>
    </message>
    <message>
        <source>choose fit, actual or whole-dots</source>
        <translation>fit、actual、whole-dots のいずれかを選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::CupsConnection</name>
    <message>
        <source>stopped at your request</source>
        <translation>ご要望により中止しました</translation>
    </message>
    <message>
        <source>Print server %1</source>
        <translation>プリントサーバー %1</translation>
    </message>
    <message>
        <source>cannot be reached (%1); start it, or print into a folder</source>
        <translation>接続できません (%1)。サーバーを起動するか、フォルダーに印刷してください</translation>
    </message>
    <message>
        <source>the print server has no such printer; choose another one</source>
        <translation>プリントサーバーにそのようなプリンターはありません。別のものを選んでください</translation>
    </message>
    <message>
        <source>does not accept jobs at the moment; choose another printer or ask its owner</source>
        <translation>現在ジョブを受け付けていません。別のプリンターを選ぶか、管理者に問い合わせてください</translation>
    </message>
    <message>
        <source>does not take documents of this kind</source>
        <translation>この種類の文書は受け付けられません</translation>
    </message>
    <message>
        <source>the print server does not let you print on it</source>
        <translation>プリントサーバーで、このプリンターでの印刷が許可されていません</translation>
    </message>
    <message>
        <source>broke off the connection (%1); try again when it is back</source>
        <translation>接続が切れました (%1)。復旧してからもう一度試してください</translation>
    </message>
    <message>
        <source>the print server refused the job (%1)</source>
        <translation>プリントサーバーがジョブを拒否しました (%1)</translation>
    </message>
</context>
<context>
    <name>dialog::DialogRun</name>
    <message>
        <source>the picture cannot be written; give a file ending in .png in a folder that can be written to</source>
        <translation>画像を書き込めません。書き込めるフォルダーの .png で終わるファイルを指定してください</translation>
    </message>
</context>
<context>
    <name>dialog::DocumentPages</name>
    <message>
        <source>there is no such file</source>
        <translation>そのようなファイルはありません</translation>
    </message>
    <message>
        <source>is a folder; choose a document in it</source>
        <translation>フォルダーです。その中の文書を選んでください</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a document</source>
        <translation>通常のファイルではありません。文書を選んでください</translation>
    </message>
    <message>
        <source>is larger than %1 MB; choose a smaller document</source>
        <translation>%1 MB を超えています。もっと小さい文書を選んでください</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>読み取れません (%1)</translation>
    </message>
    <message>
        <source>is empty; choose another document</source>
        <translation>空です。別の文書を選んでください</translation>
    </message>
    <message>
        <source>is no PDF, PNG, JPEG, TIFF or SVG document; choose one of these</source>
        <translation>PDF、PNG、JPEG、TIFF、SVG のいずれの文書でもありません。これらの文書を選んでください</translation>
    </message>
    <message>
        <source>page %1 is damaged and cannot be shown</source>
        <translation>%1 ページ目が壊れていて表示できません</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>%1 ページ目はありません</translation>
    </message>
    <message>
        <source>cannot be shown with %1 x %2 pixels</source>
        <translation>%1 x %2 ピクセルでは表示できません</translation>
    </message>
    <message>
        <source>there is not enough memory to show the page</source>
        <translation>メモリーが足りず、ページを表示できません</translation>
    </message>
    <message>
        <source>has a damaged page; save or export it once more</source>
        <translation>壊れたページがあります。もう一度保存またはエクスポートしてください</translation>
    </message>
    <message>
        <source>page %1 has too many dots at this resolution; choose a lower resolution or a shorter label</source>
        <translation>%1 ページはこの解像度では点が多すぎます。低い解像度か短いラベルを選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::DotBar</name>
    <message>
        <source>Fit</source>
        <comment>the whole label fits into the preview</comment>
        <translation>全体</translation>
    </message>
    <message>
        <source>Zoom: pixels of the screen for each printed dot</source>
        <translation>拡大率: 印刷ドット 1 個あたりの画面のピクセル数</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Show the black and the red dots</source>
        <translation>黒と赤のドットを表示</translation>
    </message>
    <message>
        <source>Show the black dots alone</source>
        <translation>黒のドットだけを表示</translation>
    </message>
    <message>
        <source>Show the red dots alone</source>
        <translation>赤のドットだけを表示</translation>
    </message>
    <message>
        <source>The dots are being made</source>
        <translation>ドットを作成しています</translation>
    </message>
    <message>
        <source>Stop, and show the page without dots</source>
        <translation>中止して、ドットなしでページを表示</translation>
    </message>
    <message>
        <source>Show dots</source>
        <translation>ドットを表示</translation>
    </message>
    <message>
        <source>Show the dots that will be printed</source>
        <translation>印刷されるドットを表示</translation>
    </message>
</context>
<context>
    <name>dialog::DotPictures</name>
    <message>
        <source>page %1 has too many dots for a PNG file; choose a shorter label or a lower resolution</source>
        <translation>%1 ページは点が多すぎて PNG ファイルにできません。短いラベルか低い解像度を選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::ExtendedTicket</name>
    <message>
        <source>is not a file; give --ticket the path of a ticket</source>
        <translation>ファイルではありません。--ticket にチケットのパスを指定してください</translation>
    </message>
    <message>
        <source>cannot be read; give --ticket a file that you may read</source>
        <translation>読み取れません。--ticket に読み取れるファイルを指定してください</translation>
    </message>
    <message>
        <source>there is no such file; check the path given with --ticket</source>
        <translation>そのファイルはありません。--ticket のパスを確認してください</translation>
    </message>
    <message>
        <source>is empty; give another ticket with --ticket</source>
        <translation>空です。--ticket に別のチケットを指定してください</translation>
    </message>
    <message>
        <source>is too large for a ticket; give one of at most %L1 bytes with --ticket</source>
        <translation>チケットとしては大きすぎます。--ticket に %L1 バイト以下のものを指定してください</translation>
    </message>
    <message>
        <source>is no XML property list with a dictionary in it; give another ticket with --ticket</source>
        <translation>辞書を含む XML プロパティリストではありません。--ticket に別のチケットを指定してください</translation>
    </message>
    <message>
        <source>its entry %1 is not a text; give another ticket with --ticket</source>
        <translation>項目 %1 がテキストではありません。--ticket に別のチケットを指定してください</translation>
    </message>
</context>
<context>
    <name>dialog::FolderPrinter</name>
    <message>
        <source>the settings of the job cannot be written down</source>
        <translation>ジョブの設定を保存できません</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>読み取れません (%1)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>choose the folder to print into</source>
        <translation>印刷先のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>cannot be made; choose another folder</source>
        <translation>作成できません。別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>cannot be written to; choose another folder</source>
        <translation>書き込めません。別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>takes no more jobs; choose another folder</source>
        <translation>これ以上ジョブを入れられません。別のフォルダーを選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::ImagePages</name>
    <message>
        <source>is a damaged picture; save or export it once more</source>
        <translation>画像が壊れています。もう一度保存またはエクスポートしてください</translation>
    </message>
    <message>
        <source>is a TIFF picture, and Qt&apos;s plug-in for these is not installed; install the package qt6-image-formats-plugins</source>
        <translation>TIFF 画像ですが、Qt の TIFF 用プラグインがありません。パッケージ qt6-image-formats-plugins をインストールしてください</translation>
    </message>
    <message>
        <source>has %1 x %2 pixels, too many for a label; make the picture smaller</source>
        <translation>%1 x %2 ピクセルはラベルには大きすぎます。画像を小さくしてください</translation>
    </message>
</context>
<context>
    <name>dialog::JobBox</name>
    <message>
        <source>All, or 1-3,5</source>
        <translation>すべて、または 1-3,5</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>ラベルに合わせる</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>倍率(&amp;S):</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>整数ドット</translation>
    </message>
</context>
<context>
    <name>dialog::JobLog</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>書き込めません (%1)。別のフォルダーを選ぶか、空き容量を増やしてください</translation>
    </message>
</context>
<context>
    <name>dialog::JobSender</name>
    <message>
        <source>stopped at your request</source>
        <translation>ご要望により中止しました</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>読み取れません (%1)</translation>
    </message>
    <message>
        <source>; job %1 may still be on the print server</source>
        <translation>。ジョブ %1 がプリントサーバーに残っている可能性があります</translation>
    </message>
</context>
<context>
    <name>dialog::JobSettings</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>部数 %n</numerusform>
        </translation>
    </message>
    <message>
        <source>choose from 1 to %1</source>
        <translation>1 から %1 までの値を選んでください</translation>
    </message>
    <message>
        <source>Copies “%1”</source>
        <translation>部数「%1」</translation>
    </message>
    <message>
        <source>write a number from 1 to %1</source>
        <translation>1 から %1 までの数を入力してください</translation>
    </message>
    <message>
        <source>the setting %1 is missing or cannot be used</source>
        <translation>設定 %1 がないか、使えません</translation>
    </message>
    <message>
        <source>is no XML property list of settings</source>
        <translation>設定の XML プロパティリストではありません</translation>
    </message>
</context>
<context>
    <name>dialog::LabelSize</name>
    <message>
        <source>Own size</source>
        <translation>ユーザー定義サイズ</translation>
    </message>
    <message>
        <source>is no label size; write width and height like 60x100mm</source>
        <translation>ラベルのサイズではありません。幅と高さを 60x100mm のように入力してください</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
</context>
<context>
    <name>dialog::LabelSizeBox</name>
    <message>
        <source>Width of the label</source>
        <translation>ラベルの幅</translation>
    </message>
    <message>
        <source>Height of the label</source>
        <translation>ラベルの高さ</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>ラベルのサイズ</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>ユーザー定義サイズ</translation>
    </message>
</context>
<context>
    <name>dialog::LibcupsServer</name>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
</context>
<context>
    <name>dialog::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>このメッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>dialog::NewFile</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>書き込めません (%1)。別のフォルダーを選ぶか、空き容量を増やしてください</translation>
    </message>
</context>
<context>
    <name>dialog::PageCanvas</name>
    <message>
        <source>No document</source>
        <translation>文書がありません</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>Page %L1 of %L2</source>
        <translation>%L1 / %L2 ページ</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Preview of the document</source>
        <translation>文書のプレビュー</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>page number, what is wrong with it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, all of its dots</source>
        <comment>page number</comment>
        <translation>%1、ドット全体</translation>
    </message>
    <message>
        <source>%1, its dots %2:1</source>
        <comment>page number, zoom</comment>
        <translation>%1、ドット %2:1</translation>
    </message>
</context>
<context>
    <name>dialog::PageRanges</name>
    <message>
        <source>Pages “%1”</source>
        <translation>ページ「%1」</translation>
    </message>
    <message>
        <source>write page numbers and ranges like 1-3,5</source>
        <translation>ページ番号や範囲を 1-3,5 のように入力してください</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>ページ番号は 1 から始まります</translation>
    </message>
    <message>
        <source>a range begins with its smaller number; write %1-%2</source>
        <translation>範囲は小さい番号から始めます。%1-%2 と入力してください</translation>
    </message>
    <message numerus="yes">
        <source>the document has only %n pages</source>
        <translation>
            <numerusform>文書は %n ページしかありません</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::PanelGuard</name>
    <message>
        <source>unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>its operation %1 failed (%2)</source>
        <translation>処理 %1 が失敗しました (%2)</translation>
    </message>
    <message>
        <source>%1; ask its maker for a newer version</source>
        <translation>%1。開発元に新しい版を求めてください</translation>
    </message>
    <message>
        <source>%1, its third fault; ask its maker for a newer version</source>
        <translation>%1。これで 3 回目の不具合です。開発元に新しい版を求めてください</translation>
    </message>
    <message>
        <source>%1 is switched off</source>
        <translation>%1 を無効にしました</translation>
    </message>
    <message>
        <source>panel %1 of plug-in %2</source>
        <translation>プラグイン %2 のパネル %1</translation>
    </message>
    <message>
        <source>panel of plug-in %1</source>
        <translation>プラグイン %1 のパネル</translation>
    </message>
    <message>
        <source>it has no view; install the plug-in again</source>
        <translation>表示する内容がありません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>it cannot take over its settings; check them</source>
        <translation>設定を反映できません。設定を確認してください</translation>
    </message>
</context>
<context>
    <name>dialog::PanelSet</name>
    <message>
        <source>unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>プラグイン %1 は使われません</translation>
    </message>
    <message>
        <source>it failed to make its panels (%1); ask its maker for a newer version</source>
        <translation>パネルを作成できませんでした (%1)。開発元に新しい版を求めてください</translation>
    </message>
    <message>
        <source>a panel of plug-in %1 is left out</source>
        <translation>プラグイン %1 のパネルの 1 つは使われません</translation>
    </message>
    <message>
        <source>the plug-in could not make it; install the plug-in again</source>
        <translation>プラグインがパネルを作成できませんでした。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which the printer does not have; install the plug-in for this printer</source>
        <translation>プリンターにないオプション %1 を設定しようとしています。このプリンター用のプラグインをインストールしてください</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which another panel sets already; remove one of the two plug-ins</source>
        <translation>別のパネルがすでに設定しているオプション %1 を設定しようとしています。どちらかのプラグインを削除してください</translation>
    </message>
    <message>
        <source>panel %1</source>
        <translation>パネル %1</translation>
    </message>
    <message>
        <source>it does not let the job start; check its settings</source>
        <translation>ジョブの開始を止めています。設定を確認してください</translation>
    </message>
    <message>
        <source>it tried to set the option %1, which is not its own</source>
        <translation>自分のものではないオプション %1 を設定しようとしました</translation>
    </message>
</context>
<context>
    <name>dialog::PanelTabs</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
</context>
<context>
    <name>dialog::PdfPages</name>
    <message>
        <source>is protected by a password; save a copy without one and print that</source>
        <translation>パスワードで保護されています。パスワードなしのコピーを保存して印刷してください</translation>
    </message>
    <message>
        <source>is encrypted in a way that cannot be read; save a copy without encryption</source>
        <translation>読み取れない方式で暗号化されています。暗号化なしのコピーを保存してください</translation>
    </message>
    <message>
        <source>is a damaged PDF document; save or export it once more</source>
        <translation>PDF 文書が壊れています。もう一度保存またはエクスポートしてください</translation>
    </message>
    <message>
        <source>has no pages; choose another document</source>
        <translation>ページがありません。別の文書を選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::PpdFile</name>
    <message>
        <source>there is no such file</source>
        <translation>そのようなファイルはありません</translation>
    </message>
    <message>
        <source>is a folder; choose the PPD file in it</source>
        <translation>フォルダーです。その中の PPD ファイルを選んでください</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a PPD file</source>
        <translation>通常のファイルではありません。PPD ファイルを選んでください</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>読み取れません (%1)</translation>
    </message>
    <message>
        <source>is empty; choose the printer&apos;s PPD file</source>
        <translation>空です。プリンターの PPD ファイルを選んでください</translation>
    </message>
    <message>
        <source>is not a usable PPD (%1); choose another one</source>
        <translation>使える PPD ではありません (%1)。別のものを選んでください</translation>
    </message>
    <message>
        <source>is not a usable PPD (line %1: %2); choose another one</source>
        <translation>使える PPD ではありません (%1 行目: %2)。別のものを選んでください</translation>
    </message>
    <message>
        <source>the printer has no such option; its options are %1</source>
        <translation>プリンターにそのようなオプションはありません。使えるオプション: %1</translation>
    </message>
    <message>
        <source>give the size of the label too, like Custom.60x100mm</source>
        <translation>ラベルのサイズも Custom.60x100mm のように指定してください</translation>
    </message>
    <message>
        <source>the option has no such choice; its choices are %1</source>
        <translation>オプションにそのような値はありません。使える値: %1</translation>
    </message>
    <message>
        <source>the printer takes no sizes of your own; choose one of its sizes</source>
        <translation>プリンターはユーザー定義サイズに対応していません。用意されたサイズから選んでください</translation>
    </message>
    <message>
        <source>the printer takes widths of %1 to %2 mm and heights of %3 to %4 mm</source>
        <translation>プリンターが対応するサイズは、幅 %1～%2 mm、高さ %3～%4 mm です</translation>
    </message>
</context>
<context>
    <name>dialog::PrintController</name>
    <message>
        <source>Sent to %1 as job %2</source>
        <translation>%1 にジョブ %2 として送りました</translation>
    </message>
    <message>
        <source>Printed to the folder %1</source>
        <translation>フォルダー %1 に印刷しました</translation>
    </message>
    <message>
        <source>the panel starts with &quot;%1&quot;; choose it there</source>
        <translation>パネルは「%1」で始まります。パネルで選んでください</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Print Label</source>
        <translation>ラベルを印刷</translation>
    </message>
    <message>
        <source>Pr&amp;inter:</source>
        <translation>プリンター(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>ラベル(&amp;L):</translation>
    </message>
    <message>
        <source>Print Label - %1</source>
        <translation>ラベルを印刷 - %1</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>文書を開く</translation>
    </message>
    <message>
        <source>Documents (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</source>
        <translation>文書 (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</translation>
    </message>
    <message>
        <source>there is no such printer; another one is chosen</source>
        <translation>そのようなプリンターはありません。別のプリンターを選びました</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>プリンターを探しています...</translation>
    </message>
    <message>
        <source>the printer is not there any more; %1 is chosen now</source>
        <translation>プリンターがなくなったため、%1 を選びました</translation>
    </message>
    <message>
        <source>Asking for the printer&apos;s settings...</source>
        <translation>プリンターの設定を問い合わせています...</translation>
    </message>
    <message>
        <source>Put right</source>
        <translation>修正する</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n more cannot be read either</source>
        <comment>a sentence about a barcode</comment>
        <translation>
            <numerusform>%1。ほかに %n 個も読み取れません</numerusform>
        </translation>
    </message>
    <message>
        <source>Whole dots: the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>整数ドット: 画像の画素がラベルのドットより多いため、ラベルに合わせます</translation>
    </message>
    <message>
        <source>Nothing is printed until all barcodes can be read (--strict)</source>
        <translation>すべてのバーコードが読み取れるまで印刷しません (--strict)</translation>
    </message>
    <message>
        <source>The printer&apos;s dots are not known, so barcodes cannot be checked; choose another printer (--strict)</source>
        <translation>プリンターのドットがわからないため、バーコードを確認できません。別のプリンターを選んでください (--strict)</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDocument</name>
    <message>
        <source>cannot be read (%1)</source>
        <translation>読み取れません (%1)</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>そのようなファイルはありません</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>is empty; there is nothing to print</source>
        <translation>空です。印刷するものがありません</translation>
    </message>
</context>
<context>
    <name>dialog::Printer</name>
    <message>
        <source>connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>ink or ribbon is used up</source>
        <translation>インクまたはリボンがありません</translation>
    </message>
    <message>
        <source>ink or ribbon is low</source>
        <translation>インクまたはリボンが残りわずかです</translation>
    </message>
    <message>
        <source>labels are used up</source>
        <translation>ラベルがありません</translation>
    </message>
    <message>
        <source>labels jammed</source>
        <translation>ラベルが詰まっています</translation>
    </message>
    <message>
        <source>few labels left</source>
        <translation>ラベルが残りわずかです</translation>
    </message>
    <message>
        <source>other labels needed</source>
        <translation>別のラベルが必要です</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源が切れています</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>応答しません</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Print into a folder</source>
        <translation>フォルダーに印刷</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterSetup</name>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1「%2」</translation>
    </message>
    <message>
        <source>cannot be had together with %1; change one of the two</source>
        <translation>%1 と同時には使えません。どちらかを変えてください</translation>
    </message>
</context>
<context>
    <name>dialog::RasterFile</name>
    <message>
        <source>the prepared pages cannot be kept there (%1); make room, or set TMPDIR to another folder</source>
        <translation>準備したページをそこに保存できません (%1)。空き容量を増やすか、TMPDIR に別のフォルダーを指定してください</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>設定の要約</translation>
    </message>
    <message>
        <source>no summary from this panel</source>
        <translation>このパネルには要約がありません</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>title of a setting</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>dialog::SvgContent</name>
    <message>
        <source>needs another file (%1), which is not read; put it into the drawing</source>
        <translation>別のファイル (%1) が必要ですが、読み込まれません。図面に埋め込んでください</translation>
    </message>
    <message>
        <source>is nested too deeply to be drawn; make the drawing simpler</source>
        <translation>入れ子が深すぎて描画できません。図面を簡単にしてください</translation>
    </message>
    <message>
        <source>is a damaged SVG drawing (line %1: %2)</source>
        <translation>SVG 図面が壊れています (%1 行目: %2)</translation>
    </message>
    <message>
        <source>has too many repeated shapes; make the drawing simpler</source>
        <translation>繰り返しの図形が多すぎます。図面を簡単にしてください</translation>
    </message>
</context>
<context>
    <name>dialog::SvgPages</name>
    <message>
        <source>is an SVG drawing that cannot be drawn; export it once more</source>
        <translation>描画できない SVG 図面です。もう一度エクスポートしてください</translation>
    </message>
    <message>
        <source>is an SVG drawing of no size; give it a width and a height</source>
        <translation>大きさのない SVG 図面です。幅と高さを指定してください</translation>
    </message>
    <message>
        <source>is an SVG drawing of more than five metres; make it smaller</source>
        <translation>5 メートルを超える SVG 図面です。小さくしてください</translation>
    </message>
</context>
<context>
    <name>loading::BundleFinder</name>
    <message>
        <source>there is no such folder; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>そのようなフォルダーはありません。--plugin にはプラグインのフォルダーのパスを指定してください</translation>
    </message>
    <message>
        <source>this is a file; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>これはファイルです。--plugin にはプラグインのフォルダーのパスを指定してください</translation>
    </message>
    <message>
        <source>there is no plug-in in this folder; give --plugin a folder whose name ends in .plugin, or one that holds such folders</source>
        <translation>このフォルダーにプラグインはありません。--plugin には名前が .plugin で終わるフォルダーか、そのようなフォルダーを含むフォルダーを指定してください</translation>
    </message>
</context>
<context>
    <name>loading::BundleLoader</name>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>プラグイン %1 は使われません</translation>
    </message>
    <message>
        <source>it is not a folder; install the plug-in again</source>
        <translation>フォルダーではありません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; is missing; install the plug-in again</source>
        <translation>プログラムファイル「%1」がありません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>its bundle.json is missing or cannot be read; install the plug-in again</source>
        <translation>bundle.json がないか、読み取れません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>its bundle.json is larger than %1 bytes; install the plug-in again</source>
        <translation>bundle.json が %1 バイトを超えています。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; cannot be loaded (%2); install the version of the plug-in for this system</source>
        <translation>プログラムファイル「%1」を読み込めません (%2)。このシステム用のプラグインをインストールしてください</translation>
    </message>
    <message>
        <source>its program file lacks the function %1; ask its maker for another one</source>
        <translation>プログラムファイルに関数 %1 がありません。開発元に別のものを求めてください</translation>
    </message>
    <message>
        <source>it declines to work here; ask its maker which systems it is for</source>
        <translation>このシステムでは動作しません。対応するシステムを開発元に確認してください</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>it failed to start (%1); install the plug-in again or remove it</source>
        <translation>起動できませんでした (%1)。プラグインを再インストールするか、削除してください</translation>
    </message>
</context>
<context>
    <name>loading::BundleMetadata</name>
    <message>
        <source>its bundle.json is damaged (%1, byte %2); install the plug-in again</source>
        <translation>bundle.json が壊れています (%1、%2 バイト目)。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>its bundle.json holds no JSON object; install the plug-in again</source>
        <translation>bundle.json に JSON オブジェクトがありません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>its bundle.json names no interface version; ask its maker for another one</source>
        <translation>bundle.json にインターフェースのバージョンがありません。開発元に別のものを求めてください</translation>
    </message>
    <message>
        <source>it is made for version %1 of the print dialog&apos;s interface and this is version %2; install a version of it that fits this dialog</source>
        <translation>印刷ダイアログのインターフェース バージョン %1 用ですが、このダイアログはバージョン %2 です。このダイアログに合う版をインストールしてください</translation>
    </message>
    <message>
        <source>its bundle.json names no principal class; ask its maker for another one</source>
        <translation>bundle.json に主クラスの指定がありません。開発元に別のものを求めてください</translation>
    </message>
    <message>
        <source>its bundle.json does not name its program file by a plain file name; ask its maker for another one</source>
        <translation>bundle.json のプログラムファイルの指定が単純なファイル名ではありません。開発元に別のものを求めてください</translation>
    </message>
    <message>
        <source>it has no panel for the print dialog; remove it or install the right plug-in</source>
        <translation>印刷ダイアログ用のパネルがありません。削除するか、正しいプラグインをインストールしてください</translation>
    </message>
</context>
<context>
    <name>loading::BundleTrust</name>
    <message>
        <source>it holds more than %1 files; install the plug-in again</source>
        <translation>%1 個を超えるファイルが含まれています。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be examined; install the plug-in again</source>
        <translation>中の「%1」を調べられません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is neither a file nor a folder; install the plug-in again</source>
        <translation>中の「%1」はファイルでもフォルダーでもありません。プラグインを再インストールしてください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user, who could change what it does; install the plug-in yourself or as root</source>
        <translation>「%1」は別のユーザーのもので、動作を変えられるおそれがあります。自分で、または root としてプラグインをインストールしてください</translation>
    </message>
    <message>
        <source>others can write to &quot;%1&quot; and so change what it does; run chmod -R go-w &quot;%2&quot; if you trust its content</source>
        <translation>ほかのユーザーが「%1」に書き込み、動作を変えられます。内容を信頼できる場合は chmod -R go-w &quot;%2&quot; を実行してください</translation>
    </message>
    <message>
        <source>the link &quot;%1&quot; in it leads out of its folder or nowhere; install the plug-in again</source>
        <translation>中のリンク「%1」がフォルダーの外を指しているか、リンク先がありません。プラグインを再インストールしてください</translation>
    </message>
</context>
</TS>
