<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>AD_PANEL_NAME</source>
        <extracomment>Name of the panel in the dialog</extracomment>
        <translation>Graphics</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <extracomment>Title label</extracomment>
        <translation>Halftone:</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Binary (text, barcodes)</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Dither (drawings)</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <extracomment>Radio row of the halftone methods; value in the summary</extracomment>
        <translation>Error diffusion (photos)</translation>
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
        <translation>Brightness:</translation>
    </message>
    <message>
        <source>HC_Contrast</source>
        <extracomment>Title label</extracomment>
        <translation>Contrast:</translation>
    </message>
    <message>
        <source>RS_BiDiPrint</source>
        <extracomment>Title of the check box</extracomment>
        <translation>Bi-directional printing</translation>
    </message>
    <message>
        <source>HC_Color</source>
        <extracomment>Title label</extracomment>
        <translation>Colour mode:</translation>
    </message>
    <message>
        <source>HC_Monochrome</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>HC_BlackRed</source>
        <extracomment>Item of the colour mode; value in the summary</extracomment>
        <translation>Black and red</translation>
    </message>
    <message>
        <source>HC_RedLevel</source>
        <extracomment>Title label</extracomment>
        <translation>Red level:</translation>
    </message>
    <message>
        <source>HC_LevelRange</source>
        <extracomment>Tool tip of a number field that refuses what is typed or cuts it to the bounds</extracomment>
        <translation>A level is a whole number from -20 to 20.</translation>
    </message>
    <message>
        <source>HC_LevelMissing</source>
        <extracomment>Tool tip of a number field whose slider went back to another level</extracomment>
        <translation>The printer does not have this level.</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Halftone</translation>
    </message>
    <message>
        <source>HC_STitle_Brightness</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>HC_STitle_Contrast</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>RS_STitle_BiDiPrint</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Bi-directional printing</translation>
    </message>
    <message>
        <source>HC_STitle_Color</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Colour mode</translation>
    </message>
    <message>
        <source>HC_STitle_RedLevel</source>
        <extracomment>Title in the summary</extracomment>
        <translation>Red level</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>Yes</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of bi-directional printing in the summary</extracomment>
        <translation>No</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Halftone:</translation>
    </message>
    <message>
        <source>Brightness : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Brightness:</translation>
    </message>
    <message>
        <source>Contrast : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Contrast:</translation>
    </message>
    <message>
        <source>Colour mode : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Colour mode:</translation>
    </message>
    <message>
        <source>Red level : </source>
        <extracomment>Title label; the key is the title that the printer gives</extracomment>
        <translation>Red level:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Halftone</translation>
    </message>
    <message>
        <source>Brightness</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Contrast</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Bi-directional printing</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Colour mode</translation>
    </message>
    <message>
        <source>Red level</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Red level</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Black and red</source>
        <extracomment>The key is the title that the printer gives</extracomment>
        <translation>Black and red</translation>
    </message>
</context>
</TS>
