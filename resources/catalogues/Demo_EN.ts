<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>MyLabel</name>
    <message>
        <source>热像图与测温工具</source>
        <translation>Thermal image and measurement tools</translation>
    </message>
</context>
<context>
    <name>My_ColorSlider</name>
    <message>
        <source>色标</source>
        <translation>Colour bar</translation>
    </message>
</context>
</TS>
