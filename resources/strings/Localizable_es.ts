<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>GraphicsPDE</name>
    <message>
        <source>&amp;Halftone:</source>
        <translation>&amp;Tramado:</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brillo:</translation>
    </message>
    <message>
        <source>Co&amp;ntrast:</source>
        <translation>Co&amp;ntraste:</translation>
    </message>
    <message>
        <source>Colour &amp;mode:</source>
        <translation>&amp;Modo de color:</translation>
    </message>
    <message>
        <source>&amp;Red level:</source>
        <translation>Nivel de &amp;rojo:</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monocromo</translation>
    </message>
    <message>
        <source>Black and red</source>
        <translation>Negro y rojo</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Red level</source>
        <translation>Nivel de rojo</translation>
    </message>
    <message>
        <source>Halftone method</source>
        <translation>Método de tramado</translation>
    </message>
    <message>
        <source>How shades of grey become black dots</source>
        <translation>Cómo los grises se convierten en puntos negros</translation>
    </message>
    <message>
        <source>Left makes the picture darker, right makes it lighter</source>
        <translation>A la izquierda, la imagen se oscurece; a la derecha, se aclara</translation>
    </message>
    <message>
        <source>Brightness level</source>
        <translation>Valor del brillo</translation>
    </message>
    <message>
        <source>Left makes light and dark more alike, right sets them further apart</source>
        <translation>A la izquierda, claros y oscuros se acercan; a la derecha, se separan</translation>
    </message>
    <message>
        <source>Contrast level</source>
        <translation>Valor del contraste</translation>
    </message>
    <message>
        <source>Red needs a printer and a tape that print black and red</source>
        <translation>El rojo necesita una impresora y una cinta de negro y rojo</translation>
    </message>
    <message>
        <source>Left prints less red, right prints more; only while black and red is chosen</source>
        <translation>A la izquierda, menos rojo; a la derecha, más; solo en negro y rojo</translation>
    </message>
    <message>
        <source>Red level number</source>
        <translation>Valor del nivel de rojo</translation>
    </message>
    <message>
        <source>Print &amp;direction:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>Prints on the way there and on the way back: faster, but lines may meet less exactly</source>
        <translation>Imprime a la ida y a la vuelta: más rápido, pero las líneas encajan peor</translation>
    </message>
    <message>
        <source>A number from -20 to 20; Up and Down change it by one</source>
        <translation>Un número de -20 a 20; las flechas arriba y abajo lo cambian en uno</translation>
    </message>
    <message>
        <source>A number from -20 to 20; only while black and red is chosen</source>
        <translation>Un número de -20 a 20; solo en negro y rojo</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>AD_PANEL_NAME</source>
        <extracomment>Name of the panel in the dialog</extracomment>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <extracomment>Title label</extracomment>
        <translation>Tramado:</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Umbral (texto, códigos de barras)</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Trama ordenada (dibujos)</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Difusión de errores (fotos)</translation>
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
        <translation>Brillo:</translation>
    </message>
    <message>
        <source>HC_Contrast</source>
        <extracomment>Title label</extracomment>
        <translation>Contraste:</translation>
    </message>
    <message>
        <source>RS_BiDiPrint</source>
        <extracomment>Title of the check box</extracomment>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>HC_Color</source>
        <extracomment>Title label</extracomment>
        <translation>Modo de color:</translation>
    </message>
    <message>
        <source>HC_Monochrome</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Monocromo</translation>
    </message>
    <message>
        <source>HC_BlackRed</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Negro y rojo</translation>
    </message>
    <message>
        <source>HC_RedLevel</source>
        <extracomment>Title label</extracomment>
        <translation>Nivel de rojo:</translation>
    </message>
    <message>
        <source>HC_LevelRange</source>
        <extracomment>Tool tip of a number field that refuses what is typed or cuts it to the bounds</extracomment>
        <translation>Un nivel es un número entero de -20 a 20.</translation>
    </message>
    <message>
        <source>HC_LevelMissing</source>
        <extracomment>Tool tip of a number field whose slider went back to another level</extracomment>
        <translation>La impresora no tiene ese nivel.</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>HC_STitle_Brightness</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>HC_STitle_Contrast</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>RS_STitle_BiDiPrint</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>HC_STitle_Color</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>HC_STitle_RedLevel</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Nivel de rojo</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>Sí</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Tramado:</translation>
    </message>
    <message>
        <source>Brightness : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Brillo:</translation>
    </message>
    <message>
        <source>Contrast : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Contraste:</translation>
    </message>
    <message>
        <source>Colour mode : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Modo de color:</translation>
    </message>
    <message>
        <source>Red level : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Nivel de rojo:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Red level</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Nivel de rojo</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Monocromo</translation>
    </message>
    <message>
        <source>Black and red</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Negro y rojo</translation>
    </message>
</context>
</TS>
