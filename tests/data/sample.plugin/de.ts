<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
 <name>SampleView</name>
 <message><source>Sample</source><translation>Muster</translation></message>
 <message><source>Level</source><translation>Stufe</translation></message>
 <message><source>second</source><translation>zweites</translation></message>
</context>
<context>
 <name>Localizable</name>
 <message><source>AD_PANEL_NAME</source><translation>Grafik</translation></message>
</context>
</TS>
