<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>dialog::Application</name>
    <message>
        <source>display</source>
        <translation>pantalla</translation>
    </message>
    <message>
        <source>there is none to show the dialog on; print with --no-dialog, or save a picture of the dialog with --screenshot</source>
        <translation>no hay ninguna en la que mostrar el diálogo; imprima con --no-dialog o guarde una imagen del diálogo con --screenshot</translation>
    </message>
    <message>
        <source>, the default</source>
        <translation>, impresora predeterminada</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>impresora</translation>
    </message>
    <message>
        <source>there is no default printer; choose one with --printer</source>
        <translation>no hay impresora predeterminada; elija una con --printer</translation>
    </message>
    <message>
        <source>there is no such printer; --list-printers lists those there are</source>
        <translation>no existe esa impresora; --list-printers muestra las que hay</translation>
    </message>
</context>
<context>
    <name>dialog::BarcodeReader</name>
    <message>
        <source>cannot be run, so barcodes are not checked; install label-print once more</source>
        <translation>no se puede ejecutar, por lo que no se comprueban los códigos de barras; vuelva a instalar label-print</translation>
    </message>
    <message>
        <source>ended in the middle of a picture, so barcodes are not checked; try once more, or check the print with a scanner</source>
        <translation>terminó en medio de una imagen, por lo que no se comprueban los códigos de barras; inténtelo de nuevo o compruebe la impresión con un lector</translation>
    </message>
</context>
<context>
    <name>dialog::BatchPrint</name>
    <message>
        <source>the document has no pixels of its own; choose fit or actual</source>
        <translation>el documento no tiene píxeles propios; elija fit o actual</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known; choose fit or actual</source>
        <translation>no se conocen los puntos de la impresora; elija fit o actual</translation>
    </message>
    <message>
        <source>the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>la imagen tiene más píxeles que puntos la etiqueta; se ajusta a la etiqueta</translation>
    </message>
    <message>
        <source>the printer is not sent dots; choose fit or actual</source>
        <translation>la impresora no recibe puntos; elija fit o actual</translation>
    </message>
    <message>
        <source>the printer&apos;s dots are not known, so barcodes cannot be checked; leave out --strict or choose another printer</source>
        <translation>no se conocen los puntos de la impresora, por lo que no se pueden comprobar los códigos de barras; omita --strict o elija otra impresora</translation>
    </message>
</context>
<context>
    <name>dialog::CodeWarning</name>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone</source>
        <translation>no se puede leer a partir de estos puntos; elija «Umbral» como tramado</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Whole dots as the scale</source>
        <translation>no se puede leer a partir de estos puntos; elija «Puntos enteros» como escala</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Binary as the halftone and Whole dots as the scale</source>
        <translation>no se puede leer a partir de estos puntos; elija «Umbral» como tramado y «Puntos enteros» como escala</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Actual size as the scale</source>
        <translation>no se puede leer a partir de estos puntos; elija «Tamaño real» como escala</translation>
    </message>
    <message>
        <source>cannot be read from these dots; choose Fit to label as the scale</source>
        <translation>no se puede leer a partir de estos puntos; elija «Ajustar a la etiqueta» como escala</translation>
    </message>
    <message>
        <source>cannot be read from these dots; set brightness and contrast to 0</source>
        <translation>no se puede leer a partir de estos puntos; ponga el brillo y el contraste a 0</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome</source>
        <translation>se imprime en rojo, que los lectores no ven; elija «Monocromo»</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome or lower the red level</source>
        <translation>se imprime en rojo, que los lectores no ven; elija «Monocromo» o baje el nivel de rojo</translation>
    </message>
    <message>
        <source>cannot be read from these dots; make the code larger: its bars are %1 dots wide, %2 or more are safe</source>
        <translation>no se puede leer a partir de estos puntos; agrande el código: sus barras miden %1 puntos de ancho, %2 o más son seguros</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; print it in black in the document</source>
        <translation>se imprime en rojo, que los lectores no ven; póngalo en negro en el documento</translation>
    </message>
    <message>
        <source>cannot be read from these dots, and no setting helps; make the code larger and pure black on white in the document</source>
        <translation>no se puede leer a partir de estos puntos y ningún ajuste ayuda; en el documento, agrande el código y póngalo en negro puro sobre blanco</translation>
    </message>
    <message>
        <source>%1 on page %2</source>
        <comment>a kind of barcode</comment>
        <translation>%1 en la página %2</translation>
    </message>
    <message>
        <source>%1 “%2” on page %3</source>
        <comment>a kind of barcode and what it says</comment>
        <translation>%1 «%2» en la página %3</translation>
    </message>
    <message>
        <source>Use Binary</source>
        <translation>Usar umbral</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>Puntos enteros</translation>
    </message>
    <message>
        <source>Binary and whole dots</source>
        <translation>Umbral y puntos enteros</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>Ajustar a la etiqueta</translation>
    </message>
    <message>
        <source>Set to 0</source>
        <translation>Poner a 0</translation>
    </message>
    <message>
        <source>Use Monochrome</source>
        <translation>Usar monocromo</translation>
    </message>
    <message>
        <source>is printed in red, which scanners do not see; choose Monochrome, and Binary as the halftone</source>
        <translation>se imprime en rojo, que los lectores no ven; elija «Monocromo», y «Umbral» como tramado</translation>
    </message>
    <message>
        <source>Monochrome and Binary</source>
        <translation>Monocromo y umbral</translation>
    </message>
</context>
<context>
    <name>dialog::ColourBadge</name>
    <message>
        <source>The label is printed in black and red</source>
        <translation>La etiqueta se imprime en negro y rojo</translation>
    </message>
    <message>
        <source>The label is printed in black</source>
        <translation>La etiqueta se imprime en negro</translation>
    </message>
    <message>
        <source>black and red</source>
        <translation>negro y rojo</translation>
    </message>
    <message>
        <source>black</source>
        <translation>negro</translation>
    </message>
</context>
<context>
    <name>dialog::CommandLineReader</name>
    <message>
        <source>The document to print: PDF, PNG, JPEG, TIFF or SVG.</source>
        <translation>El documento que se imprimirá: PDF, PNG, JPEG, TIFF o SVG.</translation>
    </message>
    <message>
        <source>[document]</source>
        <translation>[documento]</translation>
    </message>
    <message>
        <source>Print to the printer called &lt;name&gt;.</source>
        <translation>Imprimir en la impresora &lt;nombre&gt;.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Print to a folder, with the settings of the printer that &lt;file&gt; describes.</source>
        <translation>Imprimir en una carpeta, con los ajustes de la impresora que describe &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>The &lt;folder&gt; that jobs printed to a folder go to.</source>
        <translation>La &lt;carpeta&gt; a la que van los trabajos impresos en una carpeta.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>carpeta</translation>
    </message>
    <message>
        <source>Set an option of the printer; may be given several times.</source>
        <translation>Fijar una opción de la impresora; se puede repetir.</translation>
    </message>
    <message>
        <source>option=choice</source>
        <translation>opción=valor</translation>
    </message>
    <message>
        <source>Print &lt;number&gt; copies.</source>
        <translation>Imprimir &lt;número&gt; copias.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>Print these pages only, for example 1-3,5.</source>
        <translation>Imprimir solo estas páginas, por ejemplo 1-3,5.</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>páginas</translation>
    </message>
    <message>
        <source>Look for panels in &lt;folder&gt; first.</source>
        <translation>Buscar los paneles primero en &lt;carpeta&gt;.</translation>
    </message>
    <message>
        <source>Print at once, without showing the dialog.</source>
        <translation>Imprimir enseguida, sin mostrar el diálogo.</translation>
    </message>
    <message>
        <source>List the printers and stop.</source>
        <translation>Mostrar la lista de impresoras y salir.</translation>
    </message>
    <message>
        <source>Save a picture of the dialog in &lt;file&gt; and stop.</source>
        <translation>Guardar una imagen del diálogo en &lt;archivo&gt; y salir.</translation>
    </message>
    <message>
        <source>Show this help and stop.</source>
        <translation>Mostrar esta ayuda y salir.</translation>
    </message>
    <message>
        <source>Show the version and stop.</source>
        <translation>Mostrar la versión y salir.</translation>
    </message>
    <message>
        <source>Prints a document on a label printer.</source>
        <translation>Imprime un documento en una impresora de etiquetas.</translation>
    </message>
    <message>
        <source>command line</source>
        <translation>línea de órdenes</translation>
    </message>
    <message>
        <source>%1 (--help lists the options)</source>
        <translation>%1 (--help muestra las opciones)</translation>
    </message>
    <message>
        <source>only one document can be printed at a time</source>
        <translation>solo se puede imprimir un documento a la vez</translation>
    </message>
    <message>
        <source>needs a value that is not empty</source>
        <translation>necesita un valor que no esté vacío</translation>
    </message>
    <message>
        <source>give an option and its choice, for example -o CvBrightness=5</source>
        <translation>indique una opción y su valor, por ejemplo -o CvBrightness=5</translation>
    </message>
    <message>
        <source>there is no dialog to picture with --no-dialog; give one of the two</source>
        <translation>con --no-dialog no hay diálogo que capturar; indique solo una de las dos opciones</translation>
    </message>
    <message>
        <source>--ppd and --output print to a folder; leave out --printer, or the two</source>
        <translation>--ppd y --output imprimen en una carpeta; quite --printer o estas dos opciones</translation>
    </message>
    <message>
        <source>needs the name of a document to print</source>
        <translation>necesita el nombre del documento que se imprimirá</translation>
    </message>
    <message>
        <source>Start with the label, the colours and what else the print ticket in &lt;file&gt; holds.</source>
        <translation>Empezar con la etiqueta, los colores y lo demás del tique de impresión en &lt;archivo&gt;.</translation>
    </message>
    <message>
        <source>How a page gets onto the label: fit, actual (its own size) or whole-dots (each pixel of a picture so many whole dots).</source>
        <translation>Cómo llega una página a la etiqueta: fit (ajustada), actual (su tamaño) o whole-dots (cada píxel de una imagen en un número entero de puntos).</translation>
    </message>
    <message>
        <source>way</source>
        <translation>modo</translation>
    </message>
    <message>
        <source>Print nothing while a barcode of the document would not be readable or cannot be checked.</source>
        <translation>No imprimir nada mientras un código de barras del documento no fuera legible o no se pueda comprobar.</translation>
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
        <translation>Códigos de salida:
  0  se imprimió o se hizo lo demás que se pidió
  1  el diálogo se cerró sin imprimir
  2  la línea de órdenes no se puede usar
  3  el documento no se puede leer
  4  la impresora, su PPD o uno de sus ajustes no se puede usar
  5  el trabajo no se pudo entregar
  6  un código de barras no sería legible o no se puede comprobar (--strict)
</translation>
    </message>
    <message>
        <source>choose fit, actual or whole-dots</source>
        <translation>elija fit, actual o whole-dots</translation>
    </message>
</context>
<context>
    <name>dialog::CupsConnection</name>
    <message>
        <source>stopped at your request</source>
        <translation>detenido a petición suya</translation>
    </message>
    <message>
        <source>Print server %1</source>
        <translation>Servidor de impresión %1</translation>
    </message>
    <message>
        <source>cannot be reached (%1); start it, or print into a folder</source>
        <translation>no responde (%1); inícielo o imprima en una carpeta</translation>
    </message>
    <message>
        <source>the print server has no such printer; choose another one</source>
        <translation>el servidor de impresión no tiene esa impresora; elija otra</translation>
    </message>
    <message>
        <source>does not accept jobs at the moment; choose another printer or ask its owner</source>
        <translation>no acepta trabajos en este momento; elija otra impresora o pregunte a su responsable</translation>
    </message>
    <message>
        <source>does not take documents of this kind</source>
        <translation>no acepta documentos de este tipo</translation>
    </message>
    <message>
        <source>the print server does not let you print on it</source>
        <translation>el servidor de impresión no le permite imprimir en ella</translation>
    </message>
    <message>
        <source>broke off the connection (%1); try again when it is back</source>
        <translation>cortó la conexión (%1); inténtelo de nuevo cuando vuelva a estar disponible</translation>
    </message>
    <message>
        <source>the print server refused the job (%1)</source>
        <translation>el servidor de impresión rechazó el trabajo (%1)</translation>
    </message>
</context>
<context>
    <name>dialog::DialogRun</name>
    <message>
        <source>the picture cannot be written; give a file ending in .png in a folder that can be written to</source>
        <translation>no se puede escribir la imagen; indique un archivo terminado en .png en una carpeta en la que se pueda escribir</translation>
    </message>
</context>
<context>
    <name>dialog::DocumentPages</name>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>is a folder; choose a document in it</source>
        <translation>es una carpeta; elija un documento que esté en ella</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a document</source>
        <translation>no es un archivo normal; elija un documento</translation>
    </message>
    <message>
        <source>is larger than %1 MB; choose a smaller document</source>
        <translation>ocupa más de %1 MB; elija un documento más pequeño</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>is empty; choose another document</source>
        <translation>está vacío; elija otro documento</translation>
    </message>
    <message>
        <source>is no PDF, PNG, JPEG, TIFF or SVG document; choose one of these</source>
        <translation>no es un documento PDF, PNG, JPEG, TIFF ni SVG; elija uno de estos</translation>
    </message>
    <message>
        <source>page %1 is damaged and cannot be shown</source>
        <translation>la página %1 está dañada y no se puede mostrar</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>no tiene página %1</translation>
    </message>
    <message>
        <source>cannot be shown with %1 x %2 pixels</source>
        <translation>no se puede mostrar con %1 x %2 píxeles</translation>
    </message>
    <message>
        <source>there is not enough memory to show the page</source>
        <translation>no hay memoria suficiente para mostrar la página</translation>
    </message>
    <message>
        <source>has a damaged page; save or export it once more</source>
        <translation>tiene una página dañada; guárdelo o expórtelo de nuevo</translation>
    </message>
    <message>
        <source>page %1 has too many dots at this resolution; choose a lower resolution or a shorter label</source>
        <translation>la página %1 tiene demasiados puntos con esta resolución; elija una resolución menor o una etiqueta más corta</translation>
    </message>
</context>
<context>
    <name>dialog::DotBar</name>
    <message>
        <source>Fit</source>
        <comment>the whole label fits into the preview</comment>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Zoom: pixels of the screen for each printed dot</source>
        <translation>Zoom: píxeles de la pantalla por cada punto impreso</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Show the black and the red dots</source>
        <translation>Mostrar los puntos negros y los rojos</translation>
    </message>
    <message>
        <source>Show the black dots alone</source>
        <translation>Mostrar solo los puntos negros</translation>
    </message>
    <message>
        <source>Show the red dots alone</source>
        <translation>Mostrar solo los puntos rojos</translation>
    </message>
    <message>
        <source>The dots are being made</source>
        <translation>Se están calculando los puntos</translation>
    </message>
    <message>
        <source>Stop, and show the page without dots</source>
        <translation>Detener y mostrar la página sin puntos</translation>
    </message>
    <message>
        <source>Show dots</source>
        <translation>Mostrar los puntos</translation>
    </message>
    <message>
        <source>Show the dots that will be printed</source>
        <translation>Mostrar los puntos que se imprimirán</translation>
    </message>
</context>
<context>
    <name>dialog::DotPictures</name>
    <message>
        <source>page %1 has too many dots for a PNG file; choose a shorter label or a lower resolution</source>
        <translation>la página %1 tiene demasiados puntos para un archivo PNG; elija una etiqueta más corta o una resolución menor</translation>
    </message>
</context>
<context>
    <name>dialog::ExtendedTicket</name>
    <message>
        <source>is not a file; give --ticket the path of a ticket</source>
        <translation>no es un archivo; indique con --ticket la ruta de un tique</translation>
    </message>
    <message>
        <source>cannot be read; give --ticket a file that you may read</source>
        <translation>no se puede leer; indique con --ticket un archivo que pueda leer</translation>
    </message>
    <message>
        <source>there is no such file; check the path given with --ticket</source>
        <translation>no existe ese archivo; compruebe la ruta indicada con --ticket</translation>
    </message>
    <message>
        <source>is empty; give another ticket with --ticket</source>
        <translation>está vacío; indique otro tique con --ticket</translation>
    </message>
    <message>
        <source>is too large for a ticket; give one of at most %L1 bytes with --ticket</source>
        <translation>es demasiado grande para un tique; indique con --ticket uno de %L1 bytes como máximo</translation>
    </message>
    <message>
        <source>is no XML property list with a dictionary in it; give another ticket with --ticket</source>
        <translation>no es una lista de propiedades XML con un diccionario; indique otro tique con --ticket</translation>
    </message>
    <message>
        <source>its entry %1 is not a text; give another ticket with --ticket</source>
        <translation>su entrada %1 no es un texto; indique otro tique con --ticket</translation>
    </message>
</context>
<context>
    <name>dialog::FolderPrinter</name>
    <message>
        <source>the settings of the job cannot be written down</source>
        <translation>no se pueden guardar los ajustes del trabajo</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>choose the folder to print into</source>
        <translation>elija la carpeta en la que imprimir</translation>
    </message>
    <message>
        <source>cannot be made; choose another folder</source>
        <translation>no se puede crear; elija otra carpeta</translation>
    </message>
    <message>
        <source>cannot be written to; choose another folder</source>
        <translation>no se puede escribir en ella; elija otra carpeta</translation>
    </message>
    <message>
        <source>takes no more jobs; choose another folder</source>
        <translation>no admite más trabajos; elija otra carpeta</translation>
    </message>
</context>
<context>
    <name>dialog::ImagePages</name>
    <message>
        <source>is a damaged picture; save or export it once more</source>
        <translation>es una imagen dañada; guárdela o expórtela de nuevo</translation>
    </message>
    <message>
        <source>is a TIFF picture, and Qt&apos;s plug-in for these is not installed; install the package qt6-image-formats-plugins</source>
        <translation>es una imagen TIFF y el complemento de Qt para ellas no está instalado; instale el paquete qt6-image-formats-plugins</translation>
    </message>
    <message>
        <source>has %1 x %2 pixels, too many for a label; make the picture smaller</source>
        <translation>tiene %1 x %2 píxeles, demasiados para una etiqueta; reduzca la imagen</translation>
    </message>
</context>
<context>
    <name>dialog::JobBox</name>
    <message>
        <source>All, or 1-3,5</source>
        <translation>Todas, o 1-3,5</translation>
    </message>
    <message>
        <source>Fit to label</source>
        <translation>Ajustar a la etiqueta</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pá&amp;ginas:</translation>
    </message>
    <message>
        <source>&amp;Scale:</source>
        <translation>E&amp;scala:</translation>
    </message>
    <message>
        <source>Whole dots</source>
        <translation>Puntos enteros</translation>
    </message>
</context>
<context>
    <name>dialog::JobLog</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>no se puede escribir (%1); elija otra carpeta o libere espacio</translation>
    </message>
</context>
<context>
    <name>dialog::JobSender</name>
    <message>
        <source>stopped at your request</source>
        <translation>detenido a petición suya</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>; job %1 may still be on the print server</source>
        <translation>; puede que el trabajo %1 siga en el servidor de impresión</translation>
    </message>
</context>
<context>
    <name>dialog::JobSettings</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copias</numerusform>
        </translation>
    </message>
    <message>
        <source>choose from 1 to %1</source>
        <translation>elija de 1 a %1</translation>
    </message>
    <message>
        <source>Copies “%1”</source>
        <translation>Copias «%1»</translation>
    </message>
    <message>
        <source>write a number from 1 to %1</source>
        <translation>escriba un número del 1 al %1</translation>
    </message>
    <message>
        <source>the setting %1 is missing or cannot be used</source>
        <translation>falta el ajuste %1 o no se puede usar</translation>
    </message>
    <message>
        <source>is no XML property list of settings</source>
        <translation>no es una lista de propiedades XML con ajustes</translation>
    </message>
</context>
<context>
    <name>dialog::LabelSize</name>
    <message>
        <source>Own size</source>
        <translation>Tamaño propio</translation>
    </message>
    <message>
        <source>is no label size; write width and height like 60x100mm</source>
        <translation>no es un tamaño de etiqueta; escriba ancho y alto como 60x100mm</translation>
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
        <translation>Ancho de la etiqueta</translation>
    </message>
    <message>
        <source>Height of the label</source>
        <translation>Alto de la etiqueta</translation>
    </message>
    <message>
        <source>Label size</source>
        <translation>Tamaño de la etiqueta</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Tamaño propio</translation>
    </message>
</context>
<context>
    <name>dialog::LibcupsServer</name>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
</context>
<context>
    <name>dialog::MessageBar</name>
    <message>
        <source>Close this message</source>
        <translation>Cerrar este mensaje</translation>
    </message>
</context>
<context>
    <name>dialog::NewFile</name>
    <message>
        <source>cannot be written (%1); choose another folder or make room</source>
        <translation>no se puede escribir (%1); elija otra carpeta o libere espacio</translation>
    </message>
</context>
<context>
    <name>dialog::PageCanvas</name>
    <message>
        <source>No document</source>
        <translation>Ningún documento</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>Page %L1 of %L2</source>
        <translation>Página %L1 de %L2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Preview of the document</source>
        <translation>Vista previa del documento</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>page number, what is wrong with it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, all of its dots</source>
        <comment>page number</comment>
        <translation>%1, todos sus puntos</translation>
    </message>
    <message>
        <source>%1, its dots %2:1</source>
        <comment>page number, zoom</comment>
        <translation>%1, puntos a %2:1</translation>
    </message>
</context>
<context>
    <name>dialog::PageRanges</name>
    <message>
        <source>Pages “%1”</source>
        <translation>Páginas «%1»</translation>
    </message>
    <message>
        <source>write page numbers and ranges like 1-3,5</source>
        <translation>escriba números de página e intervalos como 1-3,5</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>las páginas se cuentan desde 1</translation>
    </message>
    <message>
        <source>a range begins with its smaller number; write %1-%2</source>
        <translation>un intervalo empieza por el número menor; escriba %1-%2</translation>
    </message>
    <message numerus="yes">
        <source>the document has only %n pages</source>
        <translation>
            <numerusform>el documento solo tiene %n página</numerusform>
            <numerusform>el documento solo tiene %n páginas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::PanelGuard</name>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>its operation %1 failed (%2)</source>
        <translation>falló su operación %1 (%2)</translation>
    </message>
    <message>
        <source>%1; ask its maker for a newer version</source>
        <translation>%1; pida una versión más reciente a su fabricante</translation>
    </message>
    <message>
        <source>%1, its third fault; ask its maker for a newer version</source>
        <translation>%1, su tercer fallo; pida una versión más reciente a su fabricante</translation>
    </message>
    <message>
        <source>%1 is switched off</source>
        <translation>%1 desactivado</translation>
    </message>
    <message>
        <source>panel %1 of plug-in %2</source>
        <translation>panel %1 del complemento %2</translation>
    </message>
    <message>
        <source>panel of plug-in %1</source>
        <translation>panel del complemento %1</translation>
    </message>
    <message>
        <source>it has no view; install the plug-in again</source>
        <translation>no tiene nada que mostrar; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>it cannot take over its settings; check them</source>
        <translation>no puede aplicar sus ajustes; revíselos</translation>
    </message>
</context>
<context>
    <name>dialog::PanelSet</name>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>se omite el complemento %1</translation>
    </message>
    <message>
        <source>it failed to make its panels (%1); ask its maker for a newer version</source>
        <translation>no pudo crear sus paneles (%1); pida una versión más reciente a su fabricante</translation>
    </message>
    <message>
        <source>a panel of plug-in %1 is left out</source>
        <translation>se omite un panel del complemento %1</translation>
    </message>
    <message>
        <source>the plug-in could not make it; install the plug-in again</source>
        <translation>el complemento no pudo crearlo; vuelva a instalarlo</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which the printer does not have; install the plug-in for this printer</source>
        <translation>quiere fijar la opción %1, que la impresora no tiene; instale el complemento para esta impresora</translation>
    </message>
    <message>
        <source>it wants to set the option %1, which another panel sets already; remove one of the two plug-ins</source>
        <translation>quiere fijar la opción %1, que ya fija otro panel; quite uno de los dos complementos</translation>
    </message>
    <message>
        <source>panel %1</source>
        <translation>panel %1</translation>
    </message>
    <message>
        <source>it does not let the job start; check its settings</source>
        <translation>no deja empezar el trabajo; revise sus ajustes</translation>
    </message>
    <message>
        <source>it tried to set the option %1, which is not its own</source>
        <translation>intentó fijar la opción %1, que no es suya</translation>
    </message>
</context>
<context>
    <name>dialog::PanelTabs</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
</context>
<context>
    <name>dialog::PdfPages</name>
    <message>
        <source>is protected by a password; save a copy without one and print that</source>
        <translation>está protegido con contraseña; guarde una copia sin contraseña e imprímala</translation>
    </message>
    <message>
        <source>is encrypted in a way that cannot be read; save a copy without encryption</source>
        <translation>está cifrado de un modo que no se puede leer; guarde una copia sin cifrar</translation>
    </message>
    <message>
        <source>is a damaged PDF document; save or export it once more</source>
        <translation>es un documento PDF dañado; guárdelo o expórtelo de nuevo</translation>
    </message>
    <message>
        <source>has no pages; choose another document</source>
        <translation>no tiene páginas; elija otro documento</translation>
    </message>
</context>
<context>
    <name>dialog::PpdFile</name>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>is a folder; choose the PPD file in it</source>
        <translation>es una carpeta; elija el archivo PPD que está en ella</translation>
    </message>
    <message>
        <source>is not an ordinary file; choose a PPD file</source>
        <translation>no es un archivo normal; elija un archivo PPD</translation>
    </message>
    <message>
        <source>cannot be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>is empty; choose the printer&apos;s PPD file</source>
        <translation>está vacío; elija el archivo PPD de la impresora</translation>
    </message>
    <message>
        <source>is not a usable PPD (%1); choose another one</source>
        <translation>no es un PPD utilizable (%1); elija otro</translation>
    </message>
    <message>
        <source>is not a usable PPD (line %1: %2); choose another one</source>
        <translation>no es un PPD utilizable (línea %1: %2); elija otro</translation>
    </message>
    <message>
        <source>the printer has no such option; its options are %1</source>
        <translation>la impresora no tiene esa opción; sus opciones son %1</translation>
    </message>
    <message>
        <source>give the size of the label too, like Custom.60x100mm</source>
        <translation>indique también el tamaño de la etiqueta, como Custom.60x100mm</translation>
    </message>
    <message>
        <source>the option has no such choice; its choices are %1</source>
        <translation>la opción no tiene ese valor; sus valores son %1</translation>
    </message>
    <message>
        <source>the printer takes no sizes of your own; choose one of its sizes</source>
        <translation>la impresora no admite tamaños propios; elija uno de sus tamaños</translation>
    </message>
    <message>
        <source>the printer takes widths of %1 to %2 mm and heights of %3 to %4 mm</source>
        <translation>la impresora admite anchos de %1 a %2 mm y altos de %3 a %4 mm</translation>
    </message>
</context>
<context>
    <name>dialog::PrintController</name>
    <message>
        <source>Sent to %1 as job %2</source>
        <translation>Enviado a %1 como trabajo %2</translation>
    </message>
    <message>
        <source>Printed to the folder %1</source>
        <translation>Impreso en la carpeta %1</translation>
    </message>
    <message>
        <source>the panel starts with &quot;%1&quot;; choose it there</source>
        <translation>el panel empieza con «%1»; elíjalo allí</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Print Label</source>
        <translation>Imprimir etiqueta</translation>
    </message>
    <message>
        <source>Pr&amp;inter:</source>
        <translation>Im&amp;presora:</translation>
    </message>
    <message>
        <source>&amp;Label:</source>
        <translation>&amp;Etiqueta:</translation>
    </message>
    <message>
        <source>Print Label - %1</source>
        <translation>Imprimir etiqueta - %1</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Abrir documento</translation>
    </message>
    <message>
        <source>Documents (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</source>
        <translation>Documentos (*.pdf *.png *.jpg *.jpeg *.tif *.tiff *.svg)</translation>
    </message>
    <message>
        <source>there is no such printer; another one is chosen</source>
        <translation>no existe esa impresora; se ha elegido otra</translation>
    </message>
    <message>
        <source>Looking for printers...</source>
        <translation>Buscando impresoras...</translation>
    </message>
    <message>
        <source>the printer is not there any more; %1 is chosen now</source>
        <translation>la impresora ya no está; ahora se ha elegido %1</translation>
    </message>
    <message>
        <source>Asking for the printer&apos;s settings...</source>
        <translation>Consultando los ajustes de la impresora...</translation>
    </message>
    <message>
        <source>Put right</source>
        <translation>Corregir</translation>
    </message>
    <message numerus="yes">
        <source>%1; %n more cannot be read either</source>
        <comment>a sentence about a barcode</comment>
        <translation>
            <numerusform>%1; otro más (%n) tampoco se puede leer</numerusform>
            <numerusform>%1; otros %n tampoco se pueden leer</numerusform>
        </translation>
    </message>
    <message>
        <source>Whole dots: the picture has more pixels than the label has dots; it is fitted to the label</source>
        <translation>Puntos enteros: la imagen tiene más píxeles que puntos la etiqueta; se ajusta a la etiqueta</translation>
    </message>
    <message>
        <source>Nothing is printed until all barcodes can be read (--strict)</source>
        <translation>No se imprime nada hasta que se puedan leer todos los códigos de barras (--strict)</translation>
    </message>
    <message>
        <source>The printer&apos;s dots are not known, so barcodes cannot be checked; choose another printer (--strict)</source>
        <translation>No se conocen los puntos de la impresora, por lo que no se pueden comprobar los códigos de barras; elija otra impresora (--strict)</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDocument</name>
    <message>
        <source>cannot be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>is empty; there is nothing to print</source>
        <translation>está vacío; no hay nada que imprimir</translation>
    </message>
</context>
<context>
    <name>dialog::Printer</name>
    <message>
        <source>connecting</source>
        <translation>conectando</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>cubierta abierta</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>puerta abierta</translation>
    </message>
    <message>
        <source>ink or ribbon is used up</source>
        <translation>tinta o cinta agotada</translation>
    </message>
    <message>
        <source>ink or ribbon is low</source>
        <translation>queda poca tinta o cinta</translation>
    </message>
    <message>
        <source>labels are used up</source>
        <translation>etiquetas agotadas</translation>
    </message>
    <message>
        <source>labels jammed</source>
        <translation>atasco de etiquetas</translation>
    </message>
    <message>
        <source>few labels left</source>
        <translation>quedan pocas etiquetas</translation>
    </message>
    <message>
        <source>other labels needed</source>
        <translation>se necesitan otras etiquetas</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagada</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>no responde</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>Print into a folder</source>
        <translation>Imprimir en una carpeta</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
</context>
<context>
    <name>dialog::PrinterSetup</name>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1 «%2»</translation>
    </message>
    <message>
        <source>cannot be had together with %1; change one of the two</source>
        <translation>no se puede combinar con %1; cambie uno de los dos</translation>
    </message>
</context>
<context>
    <name>dialog::RasterFile</name>
    <message>
        <source>the prepared pages cannot be kept there (%1); make room, or set TMPDIR to another folder</source>
        <translation>las páginas preparadas no se pueden guardar allí (%1); libere espacio o indique otra carpeta en TMPDIR</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>Resumen de los ajustes</translation>
    </message>
    <message>
        <source>no summary from this panel</source>
        <translation>este panel no da ningún resumen</translation>
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
        <translation>necesita otro archivo (%1), que no se lee; incrústelo en el dibujo</translation>
    </message>
    <message>
        <source>is nested too deeply to be drawn; make the drawing simpler</source>
        <translation>tiene demasiados niveles anidados; simplifique el dibujo</translation>
    </message>
    <message>
        <source>is a damaged SVG drawing (line %1: %2)</source>
        <translation>es un dibujo SVG dañado (línea %1: %2)</translation>
    </message>
    <message>
        <source>has too many repeated shapes; make the drawing simpler</source>
        <translation>tiene demasiadas formas repetidas; simplifique el dibujo</translation>
    </message>
</context>
<context>
    <name>dialog::SvgPages</name>
    <message>
        <source>is an SVG drawing that cannot be drawn; export it once more</source>
        <translation>es un dibujo SVG que no se puede representar; expórtelo de nuevo</translation>
    </message>
    <message>
        <source>is an SVG drawing of no size; give it a width and a height</source>
        <translation>es un dibujo SVG sin tamaño; asígnele un ancho y un alto</translation>
    </message>
    <message>
        <source>is an SVG drawing of more than five metres; make it smaller</source>
        <translation>es un dibujo SVG de más de cinco metros; redúzcalo</translation>
    </message>
</context>
<context>
    <name>loading::BundleFinder</name>
    <message>
        <source>there is no such folder; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>no existe esa carpeta; indique en --plugin la ruta de la carpeta de un complemento</translation>
    </message>
    <message>
        <source>this is a file; give --plugin the path of a plug-in&apos;s folder</source>
        <translation>es un archivo; indique en --plugin la ruta de la carpeta de un complemento</translation>
    </message>
    <message>
        <source>there is no plug-in in this folder; give --plugin a folder whose name ends in .plugin, or one that holds such folders</source>
        <translation>no hay ningún complemento en esta carpeta; indique en --plugin una carpeta cuyo nombre termine en .plugin o que contenga carpetas de ese tipo</translation>
    </message>
</context>
<context>
    <name>loading::BundleLoader</name>
    <message>
        <source>plug-in %1 is left out</source>
        <translation>se omite el complemento %1</translation>
    </message>
    <message>
        <source>it is not a folder; install the plug-in again</source>
        <translation>no es una carpeta; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; is missing; install the plug-in again</source>
        <translation>falta su archivo de programa «%1»; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>its bundle.json is missing or cannot be read; install the plug-in again</source>
        <translation>falta su archivo bundle.json o no se puede leer; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>its bundle.json is larger than %1 bytes; install the plug-in again</source>
        <translation>su archivo bundle.json ocupa más de %1 bytes; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>its program file &quot;%1&quot; cannot be loaded (%2); install the version of the plug-in for this system</source>
        <translation>no se puede cargar su archivo de programa «%1» (%2); instale la versión del complemento para este sistema</translation>
    </message>
    <message>
        <source>its program file lacks the function %1; ask its maker for another one</source>
        <translation>a su archivo de programa le falta la función %1; pida otro a su fabricante</translation>
    </message>
    <message>
        <source>it declines to work here; ask its maker which systems it is for</source>
        <translation>se niega a funcionar aquí; pregunte a su fabricante para qué sistemas es</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>it failed to start (%1); install the plug-in again or remove it</source>
        <translation>no se pudo iniciar (%1); vuelva a instalar el complemento o quítelo</translation>
    </message>
</context>
<context>
    <name>loading::BundleMetadata</name>
    <message>
        <source>its bundle.json is damaged (%1, byte %2); install the plug-in again</source>
        <translation>su archivo bundle.json está dañado (%1, byte %2); vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>its bundle.json holds no JSON object; install the plug-in again</source>
        <translation>su archivo bundle.json no contiene ningún objeto JSON; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>its bundle.json names no interface version; ask its maker for another one</source>
        <translation>su archivo bundle.json no indica la versión de la interfaz; pida otro a su fabricante</translation>
    </message>
    <message>
        <source>it is made for version %1 of the print dialog&apos;s interface and this is version %2; install a version of it that fits this dialog</source>
        <translation>está hecho para la versión %1 de la interfaz del diálogo de impresión y esta es la versión %2; instale una versión adecuada para este diálogo</translation>
    </message>
    <message>
        <source>its bundle.json names no principal class; ask its maker for another one</source>
        <translation>su archivo bundle.json no indica la clase principal; pida otro a su fabricante</translation>
    </message>
    <message>
        <source>its bundle.json does not name its program file by a plain file name; ask its maker for another one</source>
        <translation>su archivo bundle.json no indica el archivo de programa con un simple nombre de archivo; pida otro a su fabricante</translation>
    </message>
    <message>
        <source>it has no panel for the print dialog; remove it or install the right plug-in</source>
        <translation>no tiene ningún panel para el diálogo de impresión; quítelo o instale el complemento correcto</translation>
    </message>
</context>
<context>
    <name>loading::BundleTrust</name>
    <message>
        <source>it holds more than %1 files; install the plug-in again</source>
        <translation>contiene más de %1 archivos; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be examined; install the plug-in again</source>
        <translation>no se puede examinar «%1», que está en él; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is neither a file nor a folder; install the plug-in again</source>
        <translation>«%1», que está en él, no es ni un archivo ni una carpeta; vuelva a instalar el complemento</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user, who could change what it does; install the plug-in yourself or as root</source>
        <translation>«%1» pertenece a otro usuario, que podría cambiar lo que hace; instale el complemento usted mismo o como root</translation>
    </message>
    <message>
        <source>others can write to &quot;%1&quot; and so change what it does; run chmod -R go-w &quot;%2&quot; if you trust its content</source>
        <translation>otros pueden escribir en «%1» y cambiar así lo que hace; ejecute chmod -R go-w &quot;%2&quot; si confía en su contenido</translation>
    </message>
    <message>
        <source>the link &quot;%1&quot; in it leads out of its folder or nowhere; install the plug-in again</source>
        <translation>el enlace «%1», que está en él, lleva fuera de su carpeta o a ninguna parte; vuelva a instalar el complemento</translation>
    </message>
</context>
</TS>
