<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>dialog::JobSettings</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copy</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::PageRanges</name>
    <message numerus="yes">
        <source>the document has only %n pages</source>
        <translation>
            <numerusform>the document has only %n page</numerusform>
            <numerusform>the document has only %n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message numerus="yes">
        <source>%1; %n more cannot be read either</source>
        <comment>a sentence about a barcode</comment>
        <translation>
            <numerusform>%1; %n more cannot be read either</numerusform>
            <numerusform>%1; %n more cannot be read either</numerusform>
        </translation>
    </message>
</context>
</TS>
