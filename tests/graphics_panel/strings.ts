<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>HC_Halftone</source>
        <translation>[HC_Halftone]</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>[HC_Binary]</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>[HC_Dither]</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>[HC_ErrorDiffusion]</translation>
    </message>
    <message>
        <source>HC_MinValue</source>
        <translation>[HC_MinValue]</translation>
    </message>
    <message>
        <source>HC_MidValue</source>
        <translation>[HC_MidValue]</translation>
    </message>
    <message>
        <source>HC_MaxValue</source>
        <translation>[HC_MaxValue]</translation>
    </message>
    <message>
        <source>HC_Brightness</source>
        <translation>[HC_Brightness]</translation>
    </message>
    <message>
        <source>HC_Contrast</source>
        <translation>[HC_Contrast]</translation>
    </message>
    <message>
        <source>RS_BiDiPrint</source>
        <translation>[RS_BiDiPrint]</translation>
    </message>
    <message>
        <source>HC_Color</source>
        <translation>[HC_Color]</translation>
    </message>
    <message>
        <source>HC_Monochrome</source>
        <translation>[HC_Monochrome]</translation>
    </message>
    <message>
        <source>HC_BlackRed</source>
        <translation>[HC_BlackRed]</translation>
    </message>
    <message>
        <source>HC_RedLevel</source>
        <translation>[HC_RedLevel]</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>[HC_STitle_Halftone]</translation>
    </message>
    <message>
        <source>HC_STitle_Brightness</source>
        <translation>[HC_STitle_Brightness]</translation>
    </message>
    <message>
        <source>HC_STitle_Contrast</source>
        <translation>[HC_STitle_Contrast]</translation>
    </message>
    <message>
        <source>RS_STitle_BiDiPrint</source>
        <translation>[RS_STitle_BiDiPrint]</translation>
    </message>
    <message>
        <source>HC_STitle_Color</source>
        <translation>[HC_STitle_Color]</translation>
    </message>
    <message>
        <source>HC_STitle_RedLevel</source>
        <translation>[HC_STitle_RedLevel]</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>[RS_STitle_Yes]</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>[RS_STitle_No]</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>[Halftone : ]</translation>
    </message>
    <message>
        <source>Brightness : </source>
        <translation>[Brightness : ]</translation>
    </message>
    <message>
        <source>Contrast : </source>
        <translation>[Contrast : ]</translation>
    </message>
    <message>
        <source>Colour mode : </source>
        <translation>[Colour mode : ]</translation>
    </message>
    <message>
        <source>Red level : </source>
        <translation>[Red level : ]</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>[Halftone]</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>[Brightness]</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>[Contrast]</translation>
    </message>
    <message>
        <source>Bi-directional printing</source>
        <translation>[Bi-directional printing]</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>[Colour mode]</translation>
    </message>
    <message>
        <source>Red level</source>
        <translation>[Red level]</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>[Monochrome]</translation>
    </message>
    <message>
        <source>Black and red</source>
        <translation>[Black and red]</translation>
    </message>
</context>
</TS>
