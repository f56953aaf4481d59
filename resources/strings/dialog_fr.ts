<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>dialog::Application</name>
    <message>
        <source>display</source>
        <translation>écran</translation>
    </message>
    <message>
        <source>there is none to show the dialog on; print with --no-dialog, or save a picture of the dialog with --screenshot</source>
        <translation>il n’y en a aucun pour afficher la boîte de dialogue&#xa0;; imprimez avec --no-dialog ou enregistrez-en une image avec --screenshot</translation>
    </message>
    <message>
        <source>, the default</source>
        <translation>, imprimante par défaut</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>imprimante</translation>
    </message>
    <message>
        <source>there is no default printer; choose one with --printer</source>
        <translation>il n’y a pas d’imprimante par défaut&#xa0;; choisissez-en une avec --printer</translation>
    </message>
    <message>
        <source>there is no such printer; --list-printers lists those there are</source>
        <translation>cette imprimante n’existe pas&#xa0;; --list-printers affiche celles qui existent</translation>
    </message>
</context>
<context>
    <name>dialog::BarcodeReader</name>
    <message>
        <source>cannot be run, so barcodes are not checked; install label-print once more</source>
        <translation>ne peut pas être lancé, les codes-barres ne sont donc pas vérifiés ; réinstallez label-print</translation>
    </message>
    <message>
        <source>ended in the middle of a picture, so barcodes are not checked; try once more, or check the print with a scanner</source>
        <translation>s’est arrêté au milieu d’une image, les codes-barres ne sont donc pas vérifiés&#xa0;; réessayez, ou vérifiez l’impression avec un lecteur</translation>
    </message>
</context>
<context>
    <name>dialog::BatchPrint</name>
    <message>
        <source>the document has no pixels of its own; choose fit or actual</source>
        <translation>le document n’a pas de pixels propres&#xa0;; choisissez fit ou actual</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known; choose fit or actual</source>
        <translation>les points de l’imprimante ne sont pas connus&#xa0;; choisissez fit ou actual</translation>
    </message>
    <message>
        <source>the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>l’image a plus de pixels que l’étiquette n’a de points&#xa0;; elle est ajustée à l’étiquette</translation>
    </message>
    <message>
        <source>the printer is not sent dots; choose fit or actual</source>
        <translation>l’imprimante ne reçoit pas de points&#xa0;; choisissez fit ou actual</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known, so barcodes cannot be checked; leave out --strict or choose another printer</source>
        <translation>les points de l’imprimante ne sont pas connus, les codes-barres ne peuvent donc pas être vérifiés&#xa0;; omettez --strict ou choisissez une autre imprimante</translation>
    </message>
</context>
<context>
    <name>dialog::CodeWarning</name>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; choisissez «&#xa0;Seuil&#xa0;» comme tramage</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Whole dots as the scale</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; choisissez «&#xa0;Points entiers&#xa0;» comme échelle</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone and Whole dots as the scale</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; choisissez «&#xa0;Seuil&#xa0;» comme tramage et «&#xa0;Points entiers&#xa0;» comme échelle</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Actual size as the scale</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; choisissez «&#xa0;Taille réelle&#xa0;» comme échelle</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Fit to label as the scale</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; choisissez «&#xa0;Ajuster à l’étiquette&#xa0;» comme échelle</translation>
    </message>
    <message>
        <source>cannot be read from these dots; set brightness and contrast to 0</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; mettez la luminosité et le contraste à 0</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome</source>
        <translation>est imprimé en rouge, que les lecteurs ne voient pas&#xa0;; choisissez «&#xa0;Monochrome&#xa0;»</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome or lower the red level</source>
        <translation>est imprimé en rouge, que les lecteurs ne voient pas&#xa0;; choisissez «&#xa0;Monochrome&#xa0;» ou baissez le niveau de rouge</translation>
    </message>
    <message>
        <source>cannot be read from these dots; make the code larger: its bars are %1 dots wide, %2 or more are safe</source>
        <translation>ne peut pas être lu à partir de ces points&#xa0;; agrandissez le code&#xa0;: ses barres font %1 points de large, %2 ou plus sont sûrs</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; print it in black in the document</source>
        <translation>est imprimé en rouge, que les lecteurs ne voient pas&#xa0;; mettez-le en noir dans le document</translation>
    </message>
    <message>
        <source>cannot be read from these dots, and no setting helps; make the code larger and pure black on white in the document</source>
        <translation>ne peut pas être lu à partir de ces points, et aucun réglage n’y change rien&#xa0;; dans le document, agrandissez le code et mettez-le en noir pur sur blanc</translation>
    </message>
    <message>
        <source>%1 on page %2</source>
        <comment>a kind of barcode</comment>
        <translation>%1 à la page %2</translation>
    </message>
    <message>
        <source>%1 “%2” on page %3</source>
        <comment>a kind of barcode and what it says</comment>
        <translation>%1 «&#xa0;%2&#xa0;» à la page %3</translation>
    </message>
    <message>
        <source>Use Binary</source>
        <translation>Utiliser le seuil</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>Points entiers</translation>
    </message>
    <message>
        <source>Binary and whole dots</source>
        <translation>Seuil et points entiers</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>Ajuster à l’étiquette</translation>
    </message>
    <message>
        <source>Set to 0</source>
        <translation>Mettre à 0</translation>
    </message>
    <message>
        <source>Use Monochrome</source>
        <translation>Utiliser monochrome</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome, and Binary as the halftone</source>
        <translation>est imprimé en rouge, que les lecteurs ne voient pas&#xa0;; choisissez «&#xa0;Monochrome&#xa0;», et «&#xa0;Seuil&#xa0;» comme tramage</translation>
    </message>
    <message>
        <source>Monochrome and Binary</source>
        <translation>Monochrome et seuil</translation>
    </message>
</context>
<context>
    <name>dialog::ColourBadge</name>
    <message>
        <source>The label is printed in black and red</source>
        <translation>L’étiquette est imprimée en noir et rouge</translation>
    </message>
    <message>
        <source>The label is printed in black</source>
        <translation>L’étiquette est imprimée en noir</translation>
    </message>
    <message>
        <source>black and red</source>
        <translation>noir et rouge</translation>
    </message>
    <message>
        <source>black</source>
        <translation>noir</translation>
    </message>
</context>
<context>
    <name>dialog::CommandLineReader</name>
    <message>
        <source>The document to print: PDF, PNG, JPEG, TIFF or SVG.</source>
        <translation>Le document à imprimer&#xa0;: PDF, PNG, JPEG, TIFF ou SVG.</translation>
    </message>
    <message>
        <source>[document]</source>
        <translation>[document]</translation>
    </message>
    <message>
        <source>Print to the printer called &lt;name&gt;.</source>
        <translation>Imprimer sur l’imprimante &lt;nom&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Print to a folder, with the settings of the printer that &lt;file&gt; describes.</source>
        <translation>Imprimer dans un dossier, avec les réglages de l’imprimante que décrit &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>The &lt;folder&gt; that jobs printed to a folder go to.</source>
        <translation>Le &lt;dossier&gt; qui reçoit les travaux imprimés dans un dossier.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Set an option of the printer; may be given several times.</source>
        <translation>Régler une option de l’imprimante&#xa0;; peut être répété.</translation>
    </message>
    <message>
        <source>option=choice</source>
        <translation>option=valeur</translation>
    </message>
    <message>
        <source>Print &lt;number&gt; copies.</source>
        <translation>Imprimer &lt;nombre&gt; copies.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,5.</source>
        <translation>Imprimer seulement ces pages, par exemple 1-3,5.</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>pages</translation>
    </message>
    <message>
        <source>Look for panels in &lt;folder&gt; first.</source>
        <translation>Chercher d’abord les panneaux dans &lt;dossier&gt;.</translation>
    </message>
    <message>
        <source>Print at once, without showing the dialog.</source>
        <translation>Imprimer aussitôt, sans afficher la boîte de dialogue.</translation>
    </message>
    <message>
        <source>List the printers and stop.</source>
        <translation>Lister les imprimantes et quitter.</translation>
    </message>
    <message>
        <source>Save a picture of the dialog in &lt;file&gt; and stop.</source>
        <translation>Enregistrer une image de la boîte de dialogue dans &lt;fichier&gt; et quitter.</translation>
    </message>
    <message>
        <source>Show this help and stop.</source>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Show the version and stop.</source>
        <translation>Afficher la version et quitter.</translation>
    </message>
    <message>
        <source>Prints a document on a label printer.</source>
        <translation>Imprime un document sur une imprimante d’étiquettes.</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>ligne de commande</translation>
    </message>
    <message>
        <source>%1 (--help lists the options)</source>
        <translation>%1 (--help affiche les options)</translation>
    </message>
    <message>
        <source>only one document can be printed at a time</source>
        <translation>on ne peut imprimer qu’un seul document à la fois</translation>
    </message>
    <message>
        <source>needs a value that is not empty</source>
        <translation>demande une valeur non vide</translation>
    </message>
    <message>
        <source>give an option and its choice, for example -o CvBrightness=5</source>
        <translation>indiquez une option et sa valeur, par exemple -o CvBrightness=5</translation>
    </message>
    <message>
        <source>there is no dialog to picture with --no-dialog; give one of the two</source>
        <translation>avec --no-dialog, il n’y a pas de boîte de dialogue à représenter&#xa0;; indiquez l’une des deux options</translation>
    </message>
    <message>
        <source>--ppd and --output print to a folder; leave out --printer, or the two</source>
        <translation>--ppd et --output impriment dans un dossier&#xa0;; retirez --printer, ou ces deux options</translation>
    </message>
    <message>
        <source>needs the name of a document to print</source>
        <translation>demande le nom d’un document à imprimer</translation>
    </message>
    <message>
        <source>Start with the label, the colours and what else the print ticket in &lt;file&gt; holds.</source>
        <translation>Commencer avec l’étiquette, les couleurs et le reste du ticket d’impression dans &lt;fichier&gt;.</translation>
    </message>
    <message>
        <source>How a page gets onto the label: fit, actual (its own size) or whole-dots (each pixel of a picture so many whole dots).</source>
        <translation>Comment une page est mise sur l’étiquette&#xa0;: fit (ajustée), actual (sa propre taille) ou whole-dots (chaque pixel d’une image en un nombre entier de points).</translation>
    </message>
    <message>
        <source>way</source>
        <translation>façon</translation>
    </message>
    <message>
        <source>Print nothing while a barcode of the document would not be readable or cannot be checked.</source>
        <translation>Ne rien imprimer tant qu’un code-barres du document ne serait pas lisible ou ne peut pas être vérifié.</translation>
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
        <translation>Codes de sortie&#xa0;:
  0  imprimé, ou autre demande exécutée
  1  la boîte de dialogue a été fermée sans imprimer
  2  la ligne de commande est inutilisable
  3  le document est illisible
  4  l’imprimante, son PPD ou l’un de ses réglages est inutilisable
  5  le travail n’a pas pu être transmis
  6  un code-barres ne serait pas lisible, ou ne peut pas être vérifié (--strict)
</translation>
    </message>
    <message>
        <source>choose fit, actual or whole-dots</source>
        <translation>choisissez fit, actual ou whole-dots</translation>
    </message>
</context>
<context>
    <name>dialog::CupsConnection</name>
    <message>
        <source>stopped at your request</source>
        <translation>arrêté à votre demande</translation>
    </message>
    <message>
        <source>Print server %1</source>
        <translation>Serveur d’impression %1</translation>
    </message>
    <message>
        <source>cannot be reached (%1); start it, or print into a folder</source>
        <translation>est injoignable (%1)&#xa0;; démarrez-le ou imprimez dans un dossier</translation>
    </message>
    <message>
        <source>the print server has no such printer; choose another one</source>
        <translation>le serveur d’impression n’a pas cette imprimante&#xa0;; choisissez-en une autre</translation>
    </message>
    <message>
        <source>does not accept jobs at the moment; choose another printer or ask its owner</source>
        <translation>n’accepte pas de travaux pour le moment&#xa0;; choisissez une autre imprimante ou demandez à son responsable</translation>
    </message>
    <message>
        <source>does not take documents of this kind</source>
        <translation>n’accepte pas les documents de ce type</translation>
    </message>
    <message>
        <source>the print server does not let you print on it</source>
        <translation>le serveur d’impression ne vous autorise pas à l’utiliser</translation>
    </message>
    <message>
        <source>broke off the connection (%1); try again when it is back</source>
        <translation>a coupé la connexion (%1)&#xa0;; réessayez quand il sera de nouveau disponible</translation>
    </message>
    <message>
        <source>the print server refused the job (%1)</source>
        <translation>le serveur d’impression a refusé le travail (%1)</translation>
    </message>
</context>
<context>
    <name>dialog::DialogRun</name>
    <message>
        <source>the picture cannot be written; give a file ending in .png in a folder that can be written to</source>
        <translation>l’image ne peut pas être écrite&#xa0;; indiquez un fichier en .png dans un dossier accessible en écriture</translation>
    </message>
</context>
<context>
    <name>dialog::DocumentPages</name>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>is a folder; choose a document in it</source>
        <translation>est un dossier&#xa0;; choisissez un document qu’il contient</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a document</source>
        <translation>n’est pas un fichier ordinaire&#xa0;; choisissez un document</translation>
    </message>
    <message>
        <source>is larger than %1 MB; choose a smaller document</source>
        <translation>dépasse %1 Mo&#xa0;; choisissez un document plus petit</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>is empty; choose another document</source>
        <translation>est vide&#xa0;; choisissez un autre document</translation>
    </message>
    <message>
        <source>is no PDF, PNG, JPEG, TIFF or SVG document; choose one of these</source>
        <translation>n’est pas un document PDF, PNG, JPEG, TIFF ou SVG&#xa0;; choisissez-en un de ce type</translation>
    </message>
    <message>
        <source>page %1 is damaged and cannot be shown</source>
        <translation>la page %1 est endommagée et ne peut pas être affichée</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>n’a pas de page %1</translation>
    </message>
    <message>
        <source>cannot be shown with %1 x %2 pixels</source>
        <translation>ne peut pas être affiché en %1 x %2 pixels</translation>
    </message>
    <message>
        <source>there is not enough memory to show the page</source>
        <translation>il n’y a pas assez de mémoire pour afficher la page</translation>
    </message>
    <message>
        <source>has a damaged page; save or export it once more</source>
        <translation>contient une page endommagée&#xa0;; enregistrez-le ou exportez-le de nouveau</translation>
    </message>
    <message>
        <source>page %1 has too many dots at this resolution; choose a lower resolution or a shorter label</source>
        <translation>la page %1 a trop de points à cette résolution&#xa0;; choisissez une résolution plus faible ou une étiquette plus courte</translation>
    </message>
</context>
<context>
    <name>dialog::DotBar</name>
    <message>
        <source>Fit</source>
        <comment>the whole label fits into the preview</comment>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Zoom: pixels of the screen for each printed dot</source>
        <translation>Zoom : pixels de l’écran pour chaque point imprimé</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Show the black and the red dots</source>
        <translation>Afficher les points noirs et les points rouges</translation>
    </message>
    <message>
        <source>Show the black dots alone</source>
        <translation>Afficher seulement les points noirs</translation>
    </message>
    <message>
        <source>Show the red dots alone</source>
        <translation>Afficher seulement les points rouges</translation>
    </message>
    <message>
        <source>The dots are being made</source>
        <translation>Calcul des points en cours</translation>
    </message>
    <message>
        <source>Stop, and show the page without dots</source>
        <translation>Arrêter et afficher la page sans points</translation>
    </message>
    <message>
        <source>Show dots</source>
        <translation>Afficher les points</translation>
    </message>
    <message>
        <source>Show the dots that will be printed</source>
        <translation>Afficher les points qui seront imprimés</translation>
    </message>
</context>
<context>
    <name>dialog::DotPictures</name>
    <message>
        <source>page %1 has too many dots for a PNG file; choose a shorter label or a lower resolution</source>
        <translation>la page %1 a trop de points pour un fichier PNG&#xa0;; choisissez une étiquette plus courte ou une résolution plus basse</translation>
    </message>
</context>
<context>
    <name>dialog::ExtendedTicket</name>
    <message>
        <source>is not a file; give --ticket the path of a ticket</source>
        <translation>n’est pas un fichier&#xa0;; indiquez avec --ticket le chemin d’un ticket</translation>
    </message>
    <message>
        <source>cannot be read; give --ticket a file that you may read</source>
        <translation>ne peut pas être lu&#xa0;; indiquez avec --ticket un fichier que vous pouvez lire</translation>
    </message>
    <message>
        <source>there is no such file; check the path given with --ticket</source>
        <translation>ce fichier n’existe pas&#xa0;; vérifiez le chemin indiqué avec --ticket</translation>
    </message>
    <message>
        <source>is empty; give another ticket with --ticket</source>
        <translation>est vide&#xa0;; indiquez un autre ticket avec --ticket</translation>
    </message>
    <message>
        <source>is too large for a ticket; give one of at most %L1 bytes with --ticket</source>
        <translation>est trop grand pour un ticket&#xa0;; indiquez-en un d’au plus %L1 octets avec --ticket</translation>
    </message>
    <message>
        <source>is no XML property list with a dictionary in it; give another ticket with --ticket</source>
        <translation>n’est pas une liste de propriétés XML avec un dictionnaire&#xa0;; indiquez un autre ticket avec --ticket</translation>
    </message>
    <message>
        <source>its entry %1 is not a text; give another ticket with --ticket</source>
        <translation>son entrée %1 n’est pas un texte&#xa0;; indiquez un autre ticket avec --ticket</translation>
    </message>
</context>
<context>
    <name>dialog::FolderPrinter</name>
    <message>
        <source>the settings of the job cannot be written down</source>
        <translation>les réglages du travail ne peuvent pas être enregistrés</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>choose the folder to print into</source>
        <translation>choisissez le dossier dans lequel imprimer</translation>
    </message>
    <message>
        <source>cannot be made; choose another folder</source>
        <translation>ne peut pas être créé&#xa0;; choisissez un autre dossier</translation>
    </message>
    <message>
        <source>cannot be written to; choose another folder</source>
        <translation>n’est pas accessible en écriture&#xa0;; choisissez un autre dossier</translation>
    </message>
    <message>
        <source>takes no more jobs; choose another folder</source>
        <translation>n’accepte plus de travaux&#xa0;; choisissez un autre dossier</translation>
    </message>
</context>
<context>
    <name>dialog::ImagePages</name>
    <message>
        <source>is a damaged picture; save or export it once more</source>
        <translation>est une image endommagée&#xa0;; enregistrez-la ou exportez-la de nouveau</translation>
    </message>
    <message>
        <source>is a TIFF picture, and Qt&apos;s plug-in for these is not installed; install the package qt6-image-formats-plugins</source>
        <translation>est une image TIFF, et le module de Qt pour ce format n’est pas installé&#xa0;; installez le paquet qt6-image-formats-plugins</translation>
    </message>
    <message>
        <source>has %1 x %2 pixels, too many for a label; make the picture smaller</source>
        <translation>compte %1 x %2 pixels, trop pour une étiquette&#xa0;; réduisez l’image</translation>
    </message>
</context>
<context>
    <name>dialog::JobBox</name>
    <message>
        <source>All, or 1-3,5</source>
        <translation>Toutes, ou 1-3,5</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>Ajuster à l’étiquette</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies&#xa0;:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;ges&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>Éch&amp;elle&#xa0;:</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>Points entiers</translation>
    </message>
</context>
<context>
    <name>dialog::JobLog</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>ne peut pas être écrit (%1)&#xa0;; choisissez un autre dossier ou libérez de la place</translation>
    </message>
</context>
<context>
    <name>dialog::JobSender</name>
    <message>
        <source>stopped at your request</source>
        <translation>arrêté à votre demande</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>; job %1 may still be on the print server</source>
        <translation>&#xa0;; le travail %1 est peut-être encore sur le serveur d’impression</translation>
    </message>
</context>
<context>
    <name>dialog::JobSettings</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copie</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <message>
        <source>choose from 1 to %1</source>
        <translation>choisissez de 1 à %1</translation>
    </message>
    <message>
        <source>Copies “%1”</source>
        <translation>Copies «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>write a number from 1 to %1</source>
        <translation>écrivez un nombre de 1 à %1</translation>
    </message>
    <message>
        <source>the setting %1 is missing or cannot be used</source>
        <translation>le réglage %1 est absent ou inutilisable</translation>
    </message>
    <message>
        <source>is no XML property list of settings</source>
        <translation>n’est pas une liste de propriétés XML de réglages</translation>
    </message>
</context>
<context>
    <name>dialog::LabelSize</name>
    <message>
        <source>Own size</source>
        <translation>Taille personnalisée</translation>
    </message>
    <message>
        <source>is no label size; write width and height like 60x100mm</source>
        <translation>n’est pas une taille d’étiquette&#xa0;; écrivez la largeur et la hauteur comme 60x100mm</translation>
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
        <translation>Largeur de l’étiquette</translation>
    </message>
    <message>
        <source>Height of the label</source>
        <translation>Hauteur de l’étiquette</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Taille de l’étiquette</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Taille personnalisée</translation>
    </message>
</context>
<context>
    <name>dialog::LibcupsServer</name>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
</context>
<context>
    <name>dialog::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Fermer ce message</translation>
    </message>
</context>
<context>
    <name>dialog::NewFile</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>ne peut pas être écrit (%1)&#xa0;; choisissez un autre dossier ou libérez de la place</translation>
    </message>
</context>
<context>
    <name>dialog::PageCanvas</name>
    <message>
        <source>No document</source>
        <translation>Aucun document</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>Page %L1 of %L2</source>
        <translation>Page %L1 sur %L2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Preview of the document</source>
        <translation>Aperçu du document</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>page number, what is wrong with it</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, all of its dots</source>
        <comment>page number</comment>
        <translation>%1, tous ses points</translation>
    </message>
    <message>
        <source>%1, its dots %2:1</source>
        <comment>page number, zoom</comment>
        <translation>%1, points à %2:1</translation>
    </message>
</context>
<context>
    <name>dialog::PageRanges</name>
    <message>
        <source>Pages “%1”</source>
        <translation>Pages «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>write page numbers and ranges like 1-3,5</source>
        <translation>écrivez des numéros de page et des plages comme 1-3,5</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>les pages se comptent à partir de 1</translation>
    </message>
    <message>
        <source>a range begins with its smaller number; write %1-%2</source>
        <translation>une plage commence par son plus petit numéro&#xa0;; écrivez %1-%2</translation>
    </message>
    <message numerus="yes">
        <source>the document has only %n pages</source>
        <translation>
            <numerusform>le document n’a que %n page</numerusform>
            <numerusform>le document n’a que %n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::PanelGuard</name>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>its operation %1 failed (%2)</source>
        <translation>son opération %1 a échoué (%2)</translation>
    </message>
    <message>
        <source>%1; ask its maker for a newer version</source>
        <translation>%1&#xa0;; demandez une version plus récente à son fabricant</translation>
    </message>
    <message>
        <source>%1, its third fault; ask its maker for a newer version</source>
        <translation>%1, sa troisième erreur&#xa0;; demandez une version plus récente à son fabricant</translation>
    </message>
    <message>
        <source>%1 is switched off</source>
        <translation>%1 désactivé</translation>
    </message>
    <message>
        <source>panel %1 of plug-in %2</source>
        <translation>panneau %1 du module %2</translation>
    </message>
    <message>
        <source>panel of plug-in %1</source>
        <translation>panneau du module %1</translation>
    </message>
    <message>
        <source>it has no view; install the plug-in again</source>
        <translation>il n’a rien à afficher&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>it cannot take over its settings; check them</source>
        <translation>il ne peut pas reprendre ses réglages&#xa0;; vérifiez-les</translation>
    </message>
</context>
<context>
    <name>dialog::PanelSet</name>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>le module %1 est écarté</translation>
    </message>
    <message>
        <source>it failed to make its panels (%1); ask its maker for a newer version</source>
        <translation>il n’a pas pu créer ses panneaux (%1)&#xa0;; demandez une version plus récente à son fabricant</translation>
    </message>
    <message>
        <source>a panel of plug-in %1 is left out</source>
        <translation>un panneau du module %1 est écarté</translation>
    </message>
    <message>
        <source>the plug-in could not make it; install the plug-in again</source>
        <translation>le module n’a pas pu le créer&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which the printer does not have; install the plug-in for this printer</source>
        <translation>il veut régler l’option %1, que l’imprimante n’a pas&#xa0;; installez le module prévu pour cette imprimante</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which another panel sets already; remove one of the two plug-ins</source>
        <translation>il veut régler l’option %1, qu’un autre panneau règle déjà&#xa0;; supprimez l’un des deux modules</translation>
    </message>
    <message>
        <source>panel %1</source>
        <translation>panneau %1</translation>
    </message>
    <message>
        <source>it does not let the job start; check its settings</source>
        <translation>il empêche le travail de démarrer&#xa0;; vérifiez ses réglages</translation>
    </message>
    <message>
        <source>it tried to set the option %1, which is not its own</source>
        <translation>il a voulu régler l’option %1, qui n’est pas la sienne</translation>
    </message>
</context>
<context>
    <name>dialog::PanelTabs</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
</context>
<context>
    <name>dialog::PdfPages</name>
    <message>
        <source>is protected by a password; save a copy without one and print that</source>
        <translation>est protégé par un mot de passe&#xa0;; enregistrez une copie sans mot de passe et imprimez-la</translation>
    </message>
    <message>
        <source>is encrypted in a way that cannot be read; save a copy without encryption</source>
        <translation>est chiffré d’une manière illisible ici&#xa0;; enregistrez une copie sans chiffrement</translation>
    </message>
    <message>
        <source>is a damaged PDF document; save or export it once more</source>
        <translation>est un document PDF endommagé&#xa0;; enregistrez-le ou exportez-le de nouveau</translation>
    </message>
    <message>
        <source>has no pages; choose another document</source>
        <translation>n’a aucune page&#xa0;; choisissez un autre document</translation>
    </message>
</context>
<context>
    <name>dialog::PpdFile</name>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>is a folder; choose the PPD file in it</source>
        <translation>est un dossier&#xa0;; choisissez le fichier PPD qu’il contient</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a PPD file</source>
        <translation>n’est pas un fichier ordinaire&#xa0;; choisissez un fichier PPD</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>is empty; choose the printer&apos;s PPD file</source>
        <translation>est vide&#xa0;; choisissez le fichier PPD de l’imprimante</translation>
    </message>
    <message>
        <source>is not a usable PPD (%1); choose another one</source>
        <translation>n’est pas un PPD utilisable (%1)&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>is not a usable PPD (line %1: %2); choose another one</source>
        <translation>n’est pas un PPD utilisable (ligne %1&#xa0;: %2)&#xa0;; choisissez-en un autre</translation>
    </message>
    <message>
        <source>the printer has no such option; its options are %1</source>
        <translation>l’imprimante n’a pas cette option&#xa0;; ses options sont %1</translation>
    </message>
    <message>
        <source>give the size of the label too, like Custom.60x100mm</source>
        <translation>indiquez aussi la taille de l’étiquette, comme Custom.60x100mm</translation>
    </message>
    <message>
        <source>the option has no such choice; its choices are %1</source>
        <translation>l’option n’a pas cette valeur&#xa0;; ses valeurs sont %1</translation>
    </message>
    <message>
        <source>the printer takes no sizes of your own; choose one of its sizes</source>
        <translation>l’imprimante n’accepte pas de taille personnalisée&#xa0;; choisissez l’une de ses tailles</translation>
    </message>
    <message>
        <source>the printer takes widths of %1 to %2 mm and heights of %3 to %4 mm</source>
        <translation>l’imprimante accepte des largeurs de %1 à %2 mm et des hauteurs de %3 à %4 mm</translation>
    </message>
</context>
<context>
    <name>dialog::PrintController</name>
    <message>
        <source>Sent to %1 as job %2</source>
        <translation>Envoyé à %1, travail %2</translation>
    </message>
    <message>
        <source>Printed to the folder %1</source>
        <translation>Imprimé dans le dossier %1</translation>
    </message>
    <message>
        <source>the panel starts with &quot;%1&quot;; choose it there</source>
        <translation>le panneau commence avec «&#xa0;%1&#xa0;»&#xa0;; choisissez-le là</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Print Label</source>
        <translation>Imprimer une étiquette</translation>
    </message>
    <message>
        <source>Pr&amp;inter:</source>
        <translation>Im&amp;primante&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>Éti&amp;quette&#xa0;:</translation>
    </message>
    <message>
        <source>Print Label - %1</source>
        <translation>Imprimer une étiquette - %1</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Ouvrir un document</translation>
    </message>
    <message>
        <source>Documents (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</source>
        <translation>Documents (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</translation>
    </message>
    <message>
        <source>there is no such printer; another one is chosen</source>
        <translation>cette imprimante n’existe pas&#xa0;; une autre est choisie</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Recherche d’imprimantes...</translation>
    </message>
    <message>
        <source>the printer is not there any more; %1 is chosen now</source>
        <translation>l’imprimante n’est plus là&#xa0;; %1 est choisie à présent</translation>
    </message>
    <message>
        <source>Asking for the printer&apos;s settings...</source>
        <translation>Lecture des réglages de l’imprimante...</translation>
    </message>
    <message>
        <source>Put right</source>
        <translation>Corriger</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n more cannot be read either</source>
        <comment>a sentence about a barcode</comment>
        <translation>
            <numerusform>%1&#xa0;; %n autre n’est pas lisible non plus</numerusform>
            <numerusform>%1&#xa0;; %n autres ne sont pas lisibles non plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Whole dots: the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>Points entiers&#xa0;: l’image a plus de pixels que l’étiquette n’a de points&#xa0;; elle est ajustée à l’étiquette</translation>
    </message>
    <message>
        <source>Nothing is printed until all barcodes can be read (--strict)</source>
        <translation>Rien n’est imprimé tant que tous les codes-barres ne sont pas lisibles (--strict)</translation>
    </message>
    <message>
        <source>The printer&apos;s dots are not known, so barcodes cannot be checked; choose another printer (--strict)</source>
        <translation>Les points de l’imprimante ne sont pas connus, les codes-barres ne peuvent donc pas être vérifiés&#xa0;; choisissez une autre imprimante (--strict)</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDocument</name>
    <message>
        <source>cannot be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>is empty; there is nothing to print</source>
        <translation>est vide&#xa0;; il n’y a rien à imprimer</translation>
    </message>
</context>
<context>
    <name>dialog::Printer</name>
    <message>
        <source>connecting</source>
        <translation>connexion en cours</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>porte ouverte</translation>
    </message>
    <message>
        <source>ink or ribbon is used up</source>
        <translation>encre ou ruban épuisé</translation>
    </message>
    <message>
        <source>ink or ribbon is low</source>
        <translation>encre ou ruban presque épuisé</translation>
    </message>
    <message>
        <source>labels are used up</source>
        <translation>étiquettes épuisées</translation>
    </message>
    <message>
        <source>labels jammed</source>
        <translation>bourrage d’étiquettes</translation>
    </message>
    <message>
        <source>few labels left</source>
        <translation>bientôt plus d’étiquettes</translation>
    </message>
    <message>
        <source>other labels needed</source>
        <translation>autres étiquettes requises</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>ne répond pas</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression en cours</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prête</translation>
    </message>
    <message>
        <source>Print into a folder</source>
        <translation>Imprimer dans un dossier</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>n’accepte pas de travaux</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterSetup</name>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1 «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>cannot be had together with %1; change one of the two</source>
        <translation>est incompatible avec %1&#xa0;; changez l’un des deux</translation>
    </message>
</context>
<context>
    <name>dialog::RasterFile</name>
    <message>
        <source>the prepared pages cannot be kept there (%1); make room, or set TMPDIR to another folder</source>
        <translation>les pages préparées ne peuvent pas y être gardées (%1)&#xa0;; libérez de la place ou indiquez un autre dossier dans TMPDIR</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>Résumé des réglages</translation>
    </message>
    <message>
        <source>no summary from this panel</source>
        <translation>pas de résumé de ce panneau</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>title of a setting</comment>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>dialog::SvgContent</name>
    <message>
        <source>needs another file (%1), which is not read; put it into the drawing</source>
        <translation>a besoin d’un autre fichier (%1), qui n’est pas lu&#xa0;; intégrez-le au dessin</translation>
    </message>
    <message>
        <source>is nested too deeply to be drawn; make the drawing simpler</source>
        <translation>a trop de niveaux imbriqués pour être dessiné&#xa0;; simplifiez le dessin</translation>
    </message>
    <message>
        <source>is a damaged SVG drawing (line %1: %2)</source>
        <translation>est un dessin SVG endommagé (ligne %1&#xa0;: %2)</translation>
    </message>
    <message>
        <source>has too many repeated shapes; make the drawing simpler</source>
        <translation>contient trop de formes répétées&#xa0;; simplifiez le dessin</translation>
    </message>
</context>
<context>
    <name>dialog::SvgPages</name>
    <message>
        <source>is an SVG drawing that cannot be drawn; export it once more</source>
        <translation>est un dessin SVG qui ne peut pas être rendu&#xa0;; exportez-le de nouveau</translation>
    </message>
    <message>
        <source>is an SVG drawing of no size; give it a width and a height</source>
        <translation>est un dessin SVG sans taille&#xa0;; donnez-lui une largeur et une hauteur</translation>
    </message>
    <message>
        <source>is an SVG drawing of more than five metres; make it smaller</source>
        <translation>est un dessin SVG de plus de cinq mètres&#xa0;; réduisez-le</translation>
    </message>
</context>
<context>
    <name>loading::BundleFinder</name>
    <message>
        <source>there is no such folder; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>ce dossier n’existe pas&#xa0;; indiquez à --plugin le chemin du dossier d’un module</translation>
    </message>
    <message>
        <source>this is a file; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>c’est un fichier&#xa0;; indiquez à --plugin le chemin du dossier d’un module</translation>
    </message>
    <message>
        <source>there is no plug-in in this folder; give --plugin a folder whose name ends in .plugin, or one that holds such folders</source>
        <translation>ce dossier ne contient aucun module&#xa0;; indiquez à --plugin un dossier dont le nom se termine par .plugin ou qui contient de tels dossiers</translation>
    </message>
</context>
<context>
    <name>loading::BundleLoader</name>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>le module %1 est écarté</translation>
    </message>
    <message>
        <source>it is not a folder; install the plug-in again</source>
        <translation>ce n’est pas un dossier&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; is missing; install the plug-in again</source>
        <translation>son fichier de programme «&#xa0;%1&#xa0;» est absent&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>its bundle.json is missing or cannot be read; install the plug-in again</source>
        <translation>son fichier bundle.json est absent ou illisible&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>its bundle.json is larger than %1 bytes; install the plug-in again</source>
        <translation>son fichier bundle.json dépasse %1 octets&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; cannot be loaded (%2); install the version of the plug-in for this system</source>
        <translation>son fichier de programme «&#xa0;%1&#xa0;» ne peut pas être chargé (%2)&#xa0;; installez la version du module prévue pour ce système</translation>
    </message>
    <message>
        <source>its program file lacks the function %1; ask its maker for another one</source>
        <translation>la fonction %1 manque dans son fichier de programme&#xa0;; demandez-en un autre à son fabricant</translation>
    </message>
    <message>
        <source>it declines to work here; ask its maker which systems it is for</source>
        <translation>il refuse de fonctionner ici&#xa0;; demandez à son fabricant à quels systèmes il est destiné</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>it failed to start (%1); install the plug-in again or remove it</source>
        <translation>il n’a pas pu démarrer (%1)&#xa0;; réinstallez le module ou supprimez-le</translation>
    </message>
</context>
<context>
    <name>loading::BundleMetadata</name>
    <message>
        <source>its bundle.json is damaged (%1, byte %2); install the plug-in again</source>
        <translation>son fichier bundle.json est endommagé (%1, octet %2)&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>its bundle.json holds no JSON object; install the plug-in again</source>
        <translation>son fichier bundle.json ne contient pas d’objet JSON&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>its bundle.json names no interface version; ask its maker for another one</source>
        <translation>son fichier bundle.json n’indique pas de version d’interface&#xa0;; demandez-en un autre à son fabricant</translation>
    </message>
    <message>
        <source>it is made for version %1 of the print dialog&apos;s interface and this is version %2; install a version of it that fits this dialog</source>
        <translation>il est fait pour la version %1 de l’interface de la boîte de dialogue d’impression, et celle-ci est la version %2&#xa0;; installez une version qui lui convient</translation>
    </message>
    <message>
        <source>its bundle.json names no principal class; ask its maker for another one</source>
        <translation>son fichier bundle.json n’indique pas de classe principale&#xa0;; demandez-en un autre à son fabricant</translation>
    </message>
    <message>
        <source>its bundle.json does not name its program file by a plain file name; ask its maker for another one</source>
        <translation>son fichier bundle.json ne désigne pas le fichier de programme par un simple nom de fichier&#xa0;; demandez-en un autre à son fabricant</translation>
    </message>
    <message>
        <source>it has no panel for the print dialog; remove it or install the right plug-in</source>
        <translation>il n’a pas de panneau pour la boîte de dialogue d’impression&#xa0;; supprimez-le ou installez le bon module</translation>
    </message>
</context>
<context>
    <name>loading::BundleTrust</name>
    <message>
        <source>it holds more than %1 files; install the plug-in again</source>
        <translation>il contient plus de %1 fichiers&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be examined; install the plug-in again</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient ne peut pas être examiné&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is neither a file nor a folder; install the plug-in again</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient n’est ni un fichier ni un dossier&#xa0;; réinstallez le module</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user, who could change what it does; install the plug-in yourself or as root</source>
        <translation>«&#xa0;%1&#xa0;» appartient à un autre utilisateur, qui pourrait modifier son comportement&#xa0;; installez le module vous-même ou en tant que root</translation>
    </message>
    <message>
        <source>others can write to &quot;%1&quot; and so change what it does; run chmod -R go-w &quot;%2&quot; if you trust its content</source>
        <translation>d’autres peuvent écrire dans «&#xa0;%1&#xa0;» et ainsi modifier son comportement&#xa0;; exécutez chmod -R go-w &quot;%2&quot; si vous faites confiance à son contenu</translation>
    </message>
    <message>
        <source>the link &quot;%1&quot; in it leads out of its folder or nowhere; install the plug-in again</source>
        <translation>le lien «&#xa0;%1&#xa0;» qu’il contient mène hors de son dossier ou nulle part&#xa0;; réinstallez le module</translation>
    </message>
</context>
</TS>
