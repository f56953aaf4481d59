<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>dialog::Application</name>
    <message>
        <source>display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>there is none to show the dialog on; print with --no-dialog, or save a picture of the dialog with --screenshot</source>
        <translation>es gibt keinen, auf dem der Dialog erscheinen könnte; drucken Sie mit --no-dialog oder speichern Sie mit --screenshot ein Bild des Dialogs</translation>
    </message>
    <message>
        <source>, the default</source>
        <translation>, Standarddrucker</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>there is no default printer; choose one with --printer</source>
        <translation>es gibt keinen Standarddrucker; wählen Sie einen mit --printer</translation>
    </message>
    <message>
        <source>there is no such printer; --list-printers lists those there are</source>
        <translation>diesen Drucker gibt es nicht; --list-printers zeigt die vorhandenen</translation>
    </message>
</context>
<context>
    <name>dialog::BarcodeReader</name>
    <message>
        <source>cannot be run, so barcodes are not checked; install label-print once more</source>
        <translation>lässt sich nicht starten, deshalb werden Barcodes nicht geprüft; installieren Sie label-print noch einmal</translation>
    </message>
    <message>
        <source>ended in the middle of a picture, so barcodes are not checked; try once more, or check the print with a scanner</source>
        <translation>endete mitten in einem Bild, deshalb werden Barcodes nicht geprüft; versuchen Sie es noch einmal, oder prüfen Sie den Druck mit einem Scanner</translation>
    </message>
</context>
<context>
    <name>dialog::BatchPrint</name>
    <message>
        <source>the document has no pixels of its own; choose fit or actual</source>
        <translation>das Dokument hat keine eigenen Pixel; wählen Sie fit oder actual</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known; choose fit or actual</source>
        <translation>die Punkte des Druckers sind nicht bekannt; wählen Sie fit oder actual</translation>
    </message>
    <message>
        <source>the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>das Bild hat mehr Pixel als das Etikett Punkte; es wird an das Etikett angepasst</translation>
    </message>
    <message>
        <source>the printer is not sent dots; choose fit or actual</source>
        <translation>der Drucker bekommt keine Punkte; wählen Sie fit oder actual</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known, so barcodes cannot be checked; leave out --strict or choose another printer</source>
        <translation>die Punkte des Druckers sind nicht bekannt, deshalb können Barcodes nicht geprüft werden; lassen Sie --strict weg oder wählen Sie einen anderen Drucker</translation>
    </message>
</context>
<context>
    <name>dialog::CodeWarning</name>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone</source>
        <translation>ist aus diesen Punkten nicht lesbar; wählen Sie „Schwellwert“ als Raster</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Whole dots as the scale</source>
        <translation>ist aus diesen Punkten nicht lesbar; wählen Sie „Ganze Punkte“ als Skalierung</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone and Whole dots as the scale</source>
        <translation>ist aus diesen Punkten nicht lesbar; wählen Sie „Schwellwert“ als Raster und „Ganze Punkte“ als Skalierung</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Actual size as the scale</source>
        <translation>ist aus diesen Punkten nicht lesbar; wählen Sie „Tatsächliche Größe“ als Skalierung</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Fit to label as the scale</source>
        <translation>ist aus diesen Punkten nicht lesbar; wählen Sie „An Etikett anpassen“ als Skalierung</translation>
    </message>
    <message>
        <source>cannot be read from these dots; set brightness and contrast to 0</source>
        <translation>ist aus diesen Punkten nicht lesbar; stellen Sie Helligkeit und Kontrast auf 0</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome</source>
        <translation>wird rot gedruckt, was Scanner nicht sehen; wählen Sie „Einfarbig“</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome or lower the red level</source>
        <translation>wird rot gedruckt, was Scanner nicht sehen; wählen Sie „Einfarbig“ oder verringern Sie den Rotanteil</translation>
    </message>
    <message>
        <source>cannot be read from these dots; make the code larger: its bars are %1 dots wide, %2 or more are safe</source>
        <translation>ist aus diesen Punkten nicht lesbar; vergrößern Sie den Code: Seine Balken sind %1 Punkte breit, ab %2 sind sie sicher</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; print it in black in the document</source>
        <translation>wird rot gedruckt, was Scanner nicht sehen; machen Sie ihn im Dokument schwarz</translation>
    </message>
    <message>
        <source>cannot be read from these dots, and no setting helps; make the code larger and pure black on white in the document</source>
        <translation>ist aus diesen Punkten nicht lesbar, und keine Einstellung hilft; machen Sie den Code im Dokument größer und rein schwarz auf weiß</translation>
    </message>
    <message>
        <source>%1 on page %2</source>
        <comment>a kind of barcode</comment>
        <translation>%1 auf Seite %2</translation>
    </message>
    <message>
        <source>%1 “%2” on page %3</source>
        <comment>a kind of barcode and what it says</comment>
        <translation>%1 „%2“ auf Seite %3</translation>
    </message>
    <message>
        <source>Use Binary</source>
        <translation>Schwellwert nehmen</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>Ganze Punkte</translation>
    </message>
    <message>
        <source>Binary and whole dots</source>
        <translation>Schwellwert und ganze Punkte</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tatsächliche Größe</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>An Etikett anpassen</translation>
    </message>
    <message>
        <source>Set to 0</source>
        <translation>Auf 0 stellen</translation>
    </message>
    <message>
        <source>Use Monochrome</source>
        <translation>Einfarbig nehmen</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome, and Binary as the halftone</source>
        <translation>wird rot gedruckt, was Scanner nicht sehen; wählen Sie „Einfarbig“ und „Schwellwert“ als Raster</translation>
    </message>
    <message>
        <source>Monochrome and Binary</source>
        <translation>Einfarbig und Schwellwert</translation>
    </message>
</context>
<context>
    <name>dialog::ColourBadge</name>
    <message>
        <source>The label is printed in black and red</source>
        <translation>Das Etikett wird in Schwarz und Rot gedruckt</translation>
    </message>
    <message>
        <source>The label is printed in black</source>
        <translation>Das Etikett wird in Schwarz gedruckt</translation>
    </message>
    <message>
        <source>black and red</source>
        <translation>schwarz und rot</translation>
    </message>
    <message>
        <source>black</source>
        <translation>schwarz</translation>
    </message>
</context>
<context>
    <name>dialog::CommandLineReader</name>
    <message>
        <source>The document to print: PDF, PNG, JPEG, TIFF or SVG.</source>
        <translation>Das zu druckende Dokument: PDF, PNG, JPEG, TIFF oder SVG.</translation>
    </message>
    <message>
        <source>[document]</source>
        <translation>[Dokument]</translation>
    </message>
    <message>
        <source>Print to the printer called &lt;name&gt;.</source>
        <translation>Auf dem Drucker &lt;Name&gt; drucken.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Print to a folder, with the settings of the printer that &lt;file&gt; describes.</source>
        <translation>In einen Ordner drucken, mit den Einstellungen des Druckers, den &lt;Datei&gt; beschreibt.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The &lt;folder&gt; that jobs printed to a folder go to.</source>
        <translation>Der &lt;Ordner&gt;, in den beim Drucken in einen Ordner die Aufträge kommen.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Set an option of the printer; may be given several times.</source>
        <translation>Eine Option des Druckers setzen; mehrfach möglich.</translation>
    </message>
    <message>
        <source>option=choice</source>
        <translation>Option=Wert</translation>
    </message>
    <message>
        <source>Print &lt;number&gt; copies.</source>
        <translation>&lt;Anzahl&gt; Kopien drucken.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,5.</source>
        <translation>Nur diese Seiten drucken, zum Beispiel 1-3,5.</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Look for panels in &lt;folder&gt; first.</source>
        <translation>Bedienfelder zuerst in &lt;Ordner&gt; suchen.</translation>
    </message>
    <message>
        <source>Print at once, without showing the dialog.</source>
        <translation>Sofort drucken, ohne den Dialog zu zeigen.</translation>
    </message>
    <message>
        <source>List the printers and stop.</source>
        <translation>Die Drucker auflisten und beenden.</translation>
    </message>
    <message>
        <source>Save a picture of the dialog in &lt;file&gt; and stop.</source>
        <translation>Ein Bild des Dialogs in &lt;Datei&gt; speichern und beenden.</translation>
    </message>
    <message>
        <source>Show this help and stop.</source>
        <translation>Diese Hilfe zeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and stop.</source>
        <translation>Die Version zeigen und beenden.</translation>
    </message>
    <message>
        <source>Prints a document on a label printer.</source>
        <translation>Druckt ein Dokument auf einem Etikettendrucker.</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>%1 (--help lists the options)</source>
        <translation>%1 (--help zeigt die Optionen)</translation>
    </message>
    <message>
        <source>only one document can be printed at a time</source>
        <translation>es kann nur ein Dokument auf einmal gedruckt werden</translation>
    </message>
    <message>
        <source>needs a value that is not empty</source>
        <translation>braucht einen Wert, der nicht leer ist</translation>
    </message>
    <message>
        <source>give an option and its choice, for example -o CvBrightness=5</source>
        <translation>geben Sie eine Option und ihren Wert an, zum Beispiel -o CvBrightness=5</translation>
    </message>
    <message>
        <source>there is no dialog to picture with --no-dialog; give one of the two</source>
        <translation>mit --no-dialog gibt es keinen Dialog, der abzubilden wäre; geben Sie nur eines von beiden an</translation>
    </message>
    <message>
        <source>--ppd and --output print to a folder; leave out --printer, or the two</source>
        <translation>--ppd und --output drucken in einen Ordner; lassen Sie --printer weg oder diese beiden</translation>
    </message>
    <message>
        <source>needs the name of a document to print</source>
        <translation>braucht den Namen eines Dokuments zum Drucken</translation>
    </message>
    <message>
        <source>Start with the label, the colours and what else the print ticket in &lt;file&gt; holds.</source>
        <translation>Mit dem Etikett, den Farben und allem anderen aus dem Druckticket in &lt;Datei&gt; beginnen.</translation>
    </message>
    <message>
        <source>How a page gets onto the label: fit, actual (its own size) or whole-dots (each pixel of a picture so many whole dots).</source>
        <translation>Wie eine Seite auf das Etikett kommt: fit (angepasst), actual (eigene Größe) oder whole-dots (jedes Pixel eines Bildes so viele ganze Punkte).</translation>
    </message>
    <message>
        <source>way</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Print nothing while a barcode of the document would not be readable or cannot be checked.</source>
        <translation>Nichts drucken, solange ein Barcode des Dokuments nicht lesbar wäre oder nicht geprüft werden kann.</translation>
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
        <translation>Rückgabewerte:
  0  gedruckt oder anderes Verlangtes erledigt
  1  der Dialog wurde geschlossen, ohne zu drucken
  2  die Befehlszeile ist nicht verwendbar
  3  das Dokument ist nicht lesbar
  4  der Drucker, seine PPD oder eine Einstellung dafür ist nicht verwendbar
  5  der Auftrag konnte nicht übergeben werden
  6  ein Barcode wäre nicht lesbar oder kann nicht geprüft werden (--strict)
</translation>
    </message>
    <message>
        <source>choose fit, actual or whole-dots</source>
        <translation>wählen Sie fit, actual oder whole-dots</translation>
    </message>
</context>
<context>
    <name>dialog::CupsConnection</name>
    <message>
        <source>stopped at your request</source>
        <translation>auf Ihren Wunsch abgebrochen</translation>
    </message>
    <message>
        <source>Print server %1</source>
        <translation>Druckserver %1</translation>
    </message>
    <message>
        <source>cannot be reached (%1); start it, or print into a folder</source>
        <translation>ist nicht erreichbar (%1); starten Sie ihn oder drucken Sie in einen Ordner</translation>
    </message>
    <message>
        <source>the print server has no such printer; choose another one</source>
        <translation>der Druckserver hat diesen Drucker nicht; wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>does not accept jobs at the moment; choose another printer or ask its owner</source>
        <translation>nimmt zurzeit keine Aufträge an; wählen Sie einen anderen Drucker oder fragen Sie den Zuständigen</translation>
    </message>
    <message>
        <source>does not take documents of this kind</source>
        <translation>nimmt Dokumente dieser Art nicht an</translation>
    </message>
    <message>
        <source>the print server does not let you print on it</source>
        <translation>der Druckserver erlaubt Ihnen nicht, darauf zu drucken</translation>
    </message>
    <message>
        <source>broke off the connection (%1); try again when it is back</source>
        <translation>hat die Verbindung abgebrochen (%1); versuchen Sie es erneut, wenn er wieder da ist</translation>
    </message>
    <message>
        <source>the print server refused the job (%1)</source>
        <translation>der Druckserver hat den Auftrag abgelehnt (%1)</translation>
    </message>
</context>
<context>
    <name>dialog::DialogRun</name>
    <message>
        <source>the picture cannot be written; give a file ending in .png in a folder that can be written to</source>
        <translation>das Bild kann nicht geschrieben werden; geben Sie eine Datei mit der Endung .png in einem beschreibbaren Ordner an</translation>
    </message>
</context>
<context>
    <name>dialog::DocumentPages</name>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder; choose a document in it</source>
        <translation>ist ein Ordner; wählen Sie ein Dokument darin</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a document</source>
        <translation>ist keine gewöhnliche Datei; wählen Sie ein Dokument</translation>
    </message>
    <message>
        <source>is larger than %1 MB; choose a smaller document</source>
        <translation>ist größer als %1 MB; wählen Sie ein kleineres Dokument</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>is empty; choose another document</source>
        <translation>ist leer; wählen Sie ein anderes Dokument</translation>
    </message>
    <message>
        <source>is no PDF, PNG, JPEG, TIFF or SVG document; choose one of these</source>
        <translation>ist kein PDF-, PNG-, JPEG-, TIFF- oder SVG-Dokument; wählen Sie eines dieser Art</translation>
    </message>
    <message>
        <source>page %1 is damaged and cannot be shown</source>
        <translation>Seite %1 ist beschädigt und kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>hat keine Seite %1</translation>
    </message>
    <message>
        <source>cannot be shown with %1 x %2 pixels</source>
        <translation>kann nicht mit %1 x %2 Pixeln angezeigt werden</translation>
    </message>
    <message>
        <source>there is not enough memory to show the page</source>
        <translation>der Speicher reicht nicht, um die Seite anzuzeigen</translation>
    </message>
    <message>
        <source>has a damaged page; save or export it once more</source>
        <translation>hat eine beschädigte Seite; speichern oder exportieren Sie es noch einmal</translation>
    </message>
    <message>
        <source>page %1 has too many dots at this resolution; choose a lower resolution or a shorter label</source>
        <translation>Seite %1 hat bei dieser Auflösung zu viele Punkte; wählen Sie eine geringere Auflösung oder ein kürzeres Etikett</translation>
    </message>
</context>
<context>
    <name>dialog::DotBar</name>
    <message>
        <source>Fit</source>
        <comment>the whole label fits into the preview</comment>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Zoom: pixels of the screen for each printed dot</source>
        <translation>Zoom: Bildschirmpixel je gedrucktem Punkt</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Show the black and the red dots</source>
        <translation>Die schwarzen und die roten Punkte zeigen</translation>
    </message>
    <message>
        <source>Show the black dots alone</source>
        <translation>Nur die schwarzen Punkte zeigen</translation>
    </message>
    <message>
        <source>Show the red dots alone</source>
        <translation>Nur die roten Punkte zeigen</translation>
    </message>
    <message>
        <source>The dots are being made</source>
        <translation>Die Punkte werden berechnet</translation>
    </message>
    <message>
        <source>Stop, and show the page without dots</source>
        <translation>Anhalten und die Seite ohne Punkte zeigen</translation>
    </message>
    <message>
        <source>Show dots</source>
        <translation>Punkte zeigen</translation>
    </message>
    <message>
        <source>Show the dots that will be printed</source>
        <translation>Die Punkte zeigen, die gedruckt werden</translation>
    </message>
</context>
<context>
    <name>dialog::DotPictures</name>
    <message>
        <source>page %1 has too many dots for a PNG file; choose a shorter label or a lower resolution</source>
        <translation>Seite %1 hat zu viele Punkte für eine PNG-Datei; wählen Sie ein kürzeres Etikett oder eine geringere Auflösung</translation>
    </message>
</context>
<context>
    <name>dialog::ExtendedTicket</name>
    <message>
        <source>is not a file; give --ticket the path of a ticket</source>
        <translation>ist keine Datei; geben Sie mit --ticket den Pfad eines Tickets an</translation>
    </message>
    <message>
        <source>cannot be read; give --ticket a file that you may read</source>
        <translation>kann nicht gelesen werden; geben Sie mit --ticket eine Datei an, die Sie lesen dürfen</translation>
    </message>
    <message>
        <source>there is no such file; check the path given with --ticket</source>
        <translation>diese Datei gibt es nicht; prüfen Sie den mit --ticket angegebenen Pfad</translation>
    </message>
    <message>
        <source>is empty; give another ticket with --ticket</source>
        <translation>ist leer; geben Sie mit --ticket ein anderes Ticket an</translation>
    </message>
    <message>
        <source>is too large for a ticket; give one of at most %L1 bytes with --ticket</source>
        <translation>ist zu groß für ein Ticket; geben Sie mit --ticket eines von höchstens %L1 Bytes an</translation>
    </message>
    <message>
        <source>is no XML property list with a dictionary in it; give another ticket with --ticket</source>
        <translation>ist keine XML-Eigenschaftsliste mit einem Wörterbuch; geben Sie mit --ticket ein anderes Ticket an</translation>
    </message>
    <message>
        <source>its entry %1 is not a text; give another ticket with --ticket</source>
        <translation>sein Eintrag %1 ist kein Text; geben Sie mit --ticket ein anderes Ticket an</translation>
    </message>
</context>
<context>
    <name>dialog::FolderPrinter</name>
    <message>
        <source>the settings of the job cannot be written down</source>
        <translation>die Einstellungen des Auftrags können nicht aufgeschrieben werden</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>choose the folder to print into</source>
        <translation>wählen Sie den Ordner, in den gedruckt werden soll</translation>
    </message>
    <message>
        <source>cannot be made; choose another folder</source>
        <translation>kann nicht angelegt werden; wählen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>cannot be written to; choose another folder</source>
        <translation>ist nicht beschreibbar; wählen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>takes no more jobs; choose another folder</source>
        <translation>nimmt keine weiteren Aufträge auf; wählen Sie einen anderen Ordner</translation>
    </message>
</context>
<context>
    <name>dialog::ImagePages</name>
    <message>
        <source>is a damaged picture; save or export it once more</source>
        <translation>ist ein beschädigtes Bild; speichern oder exportieren Sie es noch einmal</translation>
    </message>
    <message>
        <source>is a TIFF picture, and Qt&apos;s plug-in for these is not installed; install the package qt6-image-formats-plugins</source>
        <translation>ist ein TIFF-Bild, und das Qt-Plug-in dafür ist nicht installiert; installieren Sie das Paket qt6-image-formats-plugins</translation>
    </message>
    <message>
        <source>has %1 x %2 pixels, too many for a label; make the picture smaller</source>
        <translation>hat %1 x %2 Pixel, zu viele für ein Etikett; verkleinern Sie das Bild</translation>
    </message>
</context>
<context>
    <name>dialog::JobBox</name>
    <message>
        <source>All, or 1-3,5</source>
        <translation>Alle, oder 1-3,5</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>An Etikett anpassen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tatsächliche Größe</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopien:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>&amp;Seiten:</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>Ska&amp;lierung:</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>Ganze Punkte</translation>
    </message>
</context>
<context>
    <name>dialog::JobLog</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>kann nicht geschrieben werden (%1); wählen Sie einen anderen Ordner oder schaffen Sie Platz</translation>
    </message>
</context>
<context>
    <name>dialog::JobSender</name>
    <message>
        <source>stopped at your request</source>
        <translation>auf Ihren Wunsch abgebrochen</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>; job %1 may still be on the print server</source>
        <translation>; Auftrag %1 ist vielleicht noch auf dem Druckserver</translation>
    </message>
</context>
<context>
    <name>dialog::JobSettings</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n Kopie</numerusform>
            <numerusform>%n Kopien</numerusform>
        </translation>
    </message>
    <message>
        <source>choose from 1 to %1</source>
        <translation>wählen Sie von 1 bis %1</translation>
    </message>
    <message>
        <source>Copies “%1”</source>
        <translation>Kopien „%1“</translation>
    </message>
    <message>
        <source>write a number from 1 to %1</source>
        <translation>schreiben Sie eine Zahl von 1 bis %1</translation>
    </message>
    <message>
        <source>the setting %1 is missing or cannot be used</source>
        <translation>die Einstellung %1 fehlt oder ist nicht verwendbar</translation>
    </message>
    <message>
        <source>is no XML property list of settings</source>
        <translation>ist keine XML-Eigenschaftsliste mit Einstellungen</translation>
    </message>
</context>
<context>
    <name>dialog::LabelSize</name>
    <message>
        <source>Own size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>is no label size; write width and height like 60x100mm</source>
        <translation>ist keine Etikettengröße; schreiben Sie Breite und Höhe wie 60x100mm</translation>
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
        <translation>Breite des Etiketts</translation>
    </message>
    <message>
        <source>Height of the label</source>
        <translation>Höhe des Etiketts</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Etikettengröße</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Eigene Größe</translation>
    </message>
</context>
<context>
    <name>dialog::LibcupsServer</name>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
</context>
<context>
    <name>dialog::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>dialog::NewFile</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>kann nicht geschrieben werden (%1); wählen Sie einen anderen Ordner oder schaffen Sie Platz</translation>
    </message>
</context>
<context>
    <name>dialog::PageCanvas</name>
    <message>
        <source>No document</source>
        <translation>Kein Dokument</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>Page %L1 of %L2</source>
        <translation>Seite %L1 von %L2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Preview of the document</source>
        <translation>Vorschau des Dokuments</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>page number, what is wrong with it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, all of its dots</source>
        <comment>page number</comment>
        <translation>%1, alle Punkte</translation>
    </message>
    <message>
        <source>%1, its dots %2:1</source>
        <comment>page number, zoom</comment>
        <translation>%1, Punkte %2:1</translation>
    </message>
</context>
<context>
    <name>dialog::PageRanges</name>
    <message>
        <source>Pages “%1”</source>
        <translation>Seiten „%1“</translation>
    </message>
    <message>
        <source>write page numbers and ranges like 1-3,5</source>
        <translation>schreiben Sie Seitenzahlen und Bereiche wie 1-3,5</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>Seiten werden ab 1 gezählt</translation>
    </message>
    <message>
        <source>a range begins with its smaller number; write %1-%2</source>
        <translation>ein Bereich beginnt mit der kleineren Zahl; schreiben Sie %1-%2</translation>
    </message>
    <message numerus="yes">
        <source>the document has only %n pages</source>
        <translation>
            <numerusform>das Dokument hat nur %n Seite</numerusform>
            <numerusform>das Dokument hat nur %n Seiten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::PanelGuard</name>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>its operation %1 failed (%2)</source>
        <translation>seine Operation %1 ist fehlgeschlagen (%2)</translation>
    </message>
    <message>
        <source>%1; ask its maker for a newer version</source>
        <translation>%1; fragen Sie den Hersteller nach einer neueren Fassung</translation>
    </message>
    <message>
        <source>%1, its third fault; ask its maker for a newer version</source>
        <translation>%1, sein dritter Fehler; fragen Sie den Hersteller nach einer neueren Fassung</translation>
    </message>
    <message>
        <source>%1 is switched off</source>
        <translation>%1 wird abgeschaltet</translation>
    </message>
    <message>
        <source>panel %1 of plug-in %2</source>
        <translation>Bedienfeld %1 des Plug-ins %2</translation>
    </message>
    <message>
        <source>panel of plug-in %1</source>
        <translation>Bedienfeld des Plug-ins %1</translation>
    </message>
    <message>
        <source>it has no view; install the plug-in again</source>
        <translation>es zeigt nichts an; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>it cannot take over its settings; check them</source>
        <translation>es kann seine Einstellungen nicht übernehmen; prüfen Sie sie</translation>
    </message>
</context>
<context>
    <name>dialog::PanelSet</name>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>Plug-in %1 wird ausgelassen</translation>
    </message>
    <message>
        <source>it failed to make its panels (%1); ask its maker for a newer version</source>
        <translation>es konnte seine Bedienfelder nicht anlegen (%1); fragen Sie den Hersteller nach einer neueren Fassung</translation>
    </message>
    <message>
        <source>a panel of plug-in %1 is left out</source>
        <translation>ein Bedienfeld des Plug-ins %1 wird ausgelassen</translation>
    </message>
    <message>
        <source>the plug-in could not make it; install the plug-in again</source>
        <translation>das Plug-in konnte es nicht anlegen; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which the printer does not have; install the plug-in for this printer</source>
        <translation>es will die Option %1 setzen, die der Drucker nicht hat; installieren Sie das Plug-in für diesen Drucker</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which another panel sets already; remove one of the two plug-ins</source>
        <translation>es will die Option %1 setzen, die schon ein anderes Bedienfeld setzt; entfernen Sie eines der beiden Plug-ins</translation>
    </message>
    <message>
        <source>panel %1</source>
        <translation>Bedienfeld %1</translation>
    </message>
    <message>
        <source>it does not let the job start; check its settings</source>
        <translation>es lässt den Auftrag nicht beginnen; prüfen Sie seine Einstellungen</translation>
    </message>
    <message>
        <source>it tried to set the option %1, which is not its own</source>
        <translation>es wollte die Option %1 setzen, die nicht seine eigene ist</translation>
    </message>
</context>
<context>
    <name>dialog::PanelTabs</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
</context>
<context>
    <name>dialog::PdfPages</name>
    <message>
        <source>is protected by a password; save a copy without one and print that</source>
        <translation>ist mit einem Passwort geschützt; speichern Sie eine Kopie ohne Passwort und drucken Sie diese</translation>
    </message>
    <message>
        <source>is encrypted in a way that cannot be read; save a copy without encryption</source>
        <translation>ist auf eine nicht lesbare Art verschlüsselt; speichern Sie eine Kopie ohne Verschlüsselung</translation>
    </message>
    <message>
        <source>is a damaged PDF document; save or export it once more</source>
        <translation>ist ein beschädigtes PDF-Dokument; speichern oder exportieren Sie es noch einmal</translation>
    </message>
    <message>
        <source>has no pages; choose another document</source>
        <translation>hat keine Seiten; wählen Sie ein anderes Dokument</translation>
    </message>
</context>
<context>
    <name>dialog::PpdFile</name>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder; choose the PPD file in it</source>
        <translation>ist ein Ordner; wählen Sie die PPD-Datei darin</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a PPD file</source>
        <translation>ist keine gewöhnliche Datei; wählen Sie eine PPD-Datei</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>is empty; choose the printer&apos;s PPD file</source>
        <translation>ist leer; wählen Sie die PPD-Datei des Druckers</translation>
    </message>
    <message>
        <source>is not a usable PPD (%1); choose another one</source>
        <translation>ist keine verwendbare PPD (%1); wählen Sie eine andere</translation>
    </message>
    <message>
        <source>is not a usable PPD (line %1: %2); choose another one</source>
        <translation>ist keine verwendbare PPD (Zeile %1: %2); wählen Sie eine andere</translation>
    </message>
    <message>
        <source>the printer has no such option; its options are %1</source>
        <translation>der Drucker hat diese Option nicht; seine Optionen sind %1</translation>
    </message>
    <message>
        <source>give the size of the label too, like Custom.60x100mm</source>
        <translation>geben Sie auch die Größe des Etiketts an, wie Custom.60x100mm</translation>
    </message>
    <message>
        <source>the option has no such choice; its choices are %1</source>
        <translation>die Option hat diesen Wert nicht; ihre Werte sind %1</translation>
    </message>
    <message>
        <source>the printer takes no sizes of your own; choose one of its sizes</source>
        <translation>der Drucker nimmt keine eigenen Größen an; wählen Sie eine seiner Größen</translation>
    </message>
    <message>
        <source>the printer takes widths of %1 to %2 mm and heights of %3 to %4 mm</source>
        <translation>der Drucker nimmt Breiten von %1 bis %2 mm und Höhen von %3 bis %4 mm an</translation>
    </message>
</context>
<context>
    <name>dialog::PrintController</name>
    <message>
        <source>Sent to %1 as job %2</source>
        <translation>An %1 als Auftrag %2 gesendet</translation>
    </message>
    <message>
        <source>Printed to the folder %1</source>
        <translation>In den Ordner %1 gedruckt</translation>
    </message>
    <message>
        <source>the panel starts with &quot;%1&quot;; choose it there</source>
        <translation>das Bedienfeld beginnt mit „%1“; wählen Sie es dort</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>Print Label</source>
        <translation>Etikett drucken</translation>
    </message>
    <message>
        <source>Pr&amp;inter:</source>
        <translation>Dr&amp;ucker:</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>Et&amp;ikett:</translation>
    </message>
    <message>
        <source>Print Label - %1</source>
        <translation>Etikett drucken - %1</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Dokument öffnen</translation>
    </message>
    <message>
        <source>Documents (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</source>
        <translation>Dokumente (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</translation>
    </message>
    <message>
        <source>there is no such printer; another one is chosen</source>
        <translation>diesen Drucker gibt es nicht; ein anderer ist gewählt</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Drucker werden gesucht...</translation>
    </message>
    <message>
        <source>the printer is not there any more; %1 is chosen now</source>
        <translation>der Drucker ist nicht mehr da; jetzt ist %1 gewählt</translation>
    </message>
    <message>
        <source>Asking for the printer&apos;s settings...</source>
        <translation>Einstellungen des Druckers werden abgefragt...</translation>
    </message>
    <message>
        <source>Put right</source>
        <translation>Beheben</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n more cannot be read either</source>
        <comment>a sentence about a barcode</comment>
        <translation>
            <numerusform>%1; %n weiterer ist ebenfalls nicht lesbar</numerusform>
            <numerusform>%1; %n weitere sind ebenfalls nicht lesbar</numerusform>
        </translation>
    </message>
    <message>
        <source>Whole dots: the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>Ganze Punkte: Das Bild hat mehr Pixel als das Etikett Punkte; es wird an das Etikett angepasst</translation>
    </message>
    <message>
        <source>Nothing is printed until all barcodes can be read (--strict)</source>
        <translation>Es wird nichts gedruckt, bis alle Barcodes lesbar sind (--strict)</translation>
    </message>
    <message>
        <source>The printer&apos;s dots are not known, so barcodes cannot be checked; choose another printer (--strict)</source>
        <translation>Die Punkte des Druckers sind nicht bekannt, deshalb können Barcodes nicht geprüft werden; wählen Sie einen anderen Drucker (--strict)</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDocument</name>
    <message>
        <source>cannot be read (%1)</source>
        <translation>kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>is empty; there is nothing to print</source>
        <translation>ist leer; es gibt nichts zu drucken</translation>
    </message>
</context>
<context>
    <name>dialog::Printer</name>
    <message>
        <source>connecting</source>
        <translation>verbindet</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>Deckel ist offen</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>Klappe ist offen</translation>
    </message>
    <message>
        <source>ink or ribbon is used up</source>
        <translation>Tinte oder Farbband ist aufgebraucht</translation>
    </message>
    <message>
        <source>ink or ribbon is low</source>
        <translation>Tinte oder Farbband geht zur Neige</translation>
    </message>
    <message>
        <source>labels are used up</source>
        <translation>Etiketten sind aufgebraucht</translation>
    </message>
    <message>
        <source>labels jammed</source>
        <translation>Etikettenstau</translation>
    </message>
    <message>
        <source>few labels left</source>
        <translation>nur noch wenige Etiketten</translation>
    </message>
    <message>
        <source>other labels needed</source>
        <translation>andere Etiketten nötig</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>Print into a folder</source>
        <translation>In einen Ordner drucken</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterSetup</name>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>cannot be had together with %1; change one of the two</source>
        <translation>geht nicht zusammen mit %1; ändern Sie eines von beiden</translation>
    </message>
</context>
<context>
    <name>dialog::RasterFile</name>
    <message>
        <source>the prepared pages cannot be kept there (%1); make room, or set TMPDIR to another folder</source>
        <translation>die vorbereiteten Seiten können dort nicht abgelegt werden (%1); schaffen Sie Platz oder setzen Sie TMPDIR auf einen anderen Ordner</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>Übersicht der Einstellungen</translation>
    </message>
    <message>
        <source>no summary from this panel</source>
        <translation>keine Übersicht von diesem Bedienfeld</translation>
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
        <translation>braucht eine andere Datei (%1), die nicht gelesen wird; betten Sie sie in die Zeichnung ein</translation>
    </message>
    <message>
        <source>is nested too deeply to be drawn; make the drawing simpler</source>
        <translation>ist zu tief verschachtelt, um gezeichnet zu werden; vereinfachen Sie die Zeichnung</translation>
    </message>
    <message>
        <source>is a damaged SVG drawing (line %1: %2)</source>
        <translation>ist eine beschädigte SVG-Zeichnung (Zeile %1: %2)</translation>
    </message>
    <message>
        <source>has too many repeated shapes; make the drawing simpler</source>
        <translation>hat zu viele wiederholte Formen; vereinfachen Sie die Zeichnung</translation>
    </message>
</context>
<context>
    <name>dialog::SvgPages</name>
    <message>
        <source>is an SVG drawing that cannot be drawn; export it once more</source>
        <translation>ist eine SVG-Zeichnung, die nicht gezeichnet werden kann; exportieren Sie sie noch einmal</translation>
    </message>
    <message>
        <source>is an SVG drawing of no size; give it a width and a height</source>
        <translation>ist eine SVG-Zeichnung ohne Größe; geben Sie ihr eine Breite und eine Höhe</translation>
    </message>
    <message>
        <source>is an SVG drawing of more than five metres; make it smaller</source>
        <translation>ist eine SVG-Zeichnung von mehr als fünf Metern; verkleinern Sie sie</translation>
    </message>
</context>
<context>
    <name>loading::BundleFinder</name>
    <message>
        <source>there is no such folder; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>diesen Ordner gibt es nicht; geben Sie mit --plugin den Pfad eines Plug-in-Ordners an</translation>
    </message>
    <message>
        <source>this is a file; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>das ist eine Datei; geben Sie mit --plugin den Pfad eines Plug-in-Ordners an</translation>
    </message>
    <message>
        <source>there is no plug-in in this folder; give --plugin a folder whose name ends in .plugin, or one that holds such folders</source>
        <translation>in diesem Ordner ist kein Plug-in; geben Sie mit --plugin einen Ordner an, dessen Name auf .plugin endet, oder einen, der solche Ordner enthält</translation>
    </message>
</context>
<context>
    <name>loading::BundleLoader</name>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>Plug-in %1 wird ausgelassen</translation>
    </message>
    <message>
        <source>it is not a folder; install the plug-in again</source>
        <translation>es ist kein Ordner; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; is missing; install the plug-in again</source>
        <translation>seine Programmdatei „%1“ fehlt; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>its bundle.json is missing or cannot be read; install the plug-in again</source>
        <translation>seine bundle.json fehlt oder ist nicht lesbar; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>its bundle.json is larger than %1 bytes; install the plug-in again</source>
        <translation>seine bundle.json ist größer als %1 Byte; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; cannot be loaded (%2); install the version of the plug-in for this system</source>
        <translation>seine Programmdatei „%1“ kann nicht geladen werden (%2); installieren Sie die Fassung des Plug-ins für dieses System</translation>
    </message>
    <message>
        <source>its program file lacks the function %1; ask its maker for another one</source>
        <translation>seiner Programmdatei fehlt die Funktion %1; fragen Sie den Hersteller nach einer anderen</translation>
    </message>
    <message>
        <source>it declines to work here; ask its maker which systems it is for</source>
        <translation>es lehnt die Arbeit auf diesem System ab; fragen Sie den Hersteller, für welche Systeme es gedacht ist</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>it failed to start (%1); install the plug-in again or remove it</source>
        <translation>es konnte nicht gestartet werden (%1); installieren Sie das Plug-in neu oder entfernen Sie es</translation>
    </message>
</context>
<context>
    <name>loading::BundleMetadata</name>
    <message>
        <source>its bundle.json is damaged (%1, byte %2); install the plug-in again</source>
        <translation>seine bundle.json ist beschädigt (%1, Byte %2); installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>its bundle.json holds no JSON object; install the plug-in again</source>
        <translation>seine bundle.json enthält kein JSON-Objekt; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>its bundle.json names no interface version; ask its maker for another one</source>
        <translation>seine bundle.json nennt keine Schnittstellenversion; fragen Sie den Hersteller nach einer anderen</translation>
    </message>
    <message>
        <source>it is made for version %1 of the print dialog&apos;s interface and this is version %2; install a version of it that fits this dialog</source>
        <translation>es ist für Version %1 der Schnittstelle des Druckdialogs gemacht, dies ist Version %2; installieren Sie eine Fassung, die zu diesem Dialog passt</translation>
    </message>
    <message>
        <source>its bundle.json names no principal class; ask its maker for another one</source>
        <translation>seine bundle.json nennt keine Hauptklasse; fragen Sie den Hersteller nach einer anderen</translation>
    </message>
    <message>
        <source>its bundle.json does not name its program file by a plain file name; ask its maker for another one</source>
        <translation>seine bundle.json nennt die Programmdatei nicht mit einem einfachen Dateinamen; fragen Sie den Hersteller nach einer anderen</translation>
    </message>
    <message>
        <source>it has no panel for the print dialog; remove it or install the right plug-in</source>
        <translation>es hat kein Bedienfeld für den Druckdialog; entfernen Sie es oder installieren Sie das richtige Plug-in</translation>
    </message>
</context>
<context>
    <name>loading::BundleTrust</name>
    <message>
        <source>it holds more than %1 files; install the plug-in again</source>
        <translation>es enthält mehr als %1 Dateien; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be examined; install the plug-in again</source>
        <translation>„%1“ darin kann nicht geprüft werden; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is neither a file nor a folder; install the plug-in again</source>
        <translation>„%1“ darin ist weder eine Datei noch ein Ordner; installieren Sie das Plug-in neu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user, who could change what it does; install the plug-in yourself or as root</source>
        <translation>„%1“ gehört einem anderen Benutzer, der ändern könnte, was es tut; installieren Sie das Plug-in selbst oder als root</translation>
    </message>
    <message>
        <source>others can write to &quot;%1&quot; and so change what it does; run chmod -R go-w &quot;%2&quot; if you trust its content</source>
        <translation>andere dürfen in „%1“ schreiben und so ändern, was es tut; führen Sie chmod -R go-w &quot;%2&quot; aus, wenn Sie dem Inhalt vertrauen</translation>
    </message>
    <message>
        <source>the link &quot;%1&quot; in it leads out of its folder or nowhere; install the plug-in again</source>
        <translation>der Link „%1“ darin führt aus seinem Ordner hinaus oder ins Leere; installieren Sie das Plug-in neu</translation>
    </message>
</context>
</TS>
