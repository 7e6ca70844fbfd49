<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="zh_CN">
<context>
    <name>MyLabel</name>
    <message>
        <source>热像图与测温工具</source>
        <translation>Термограмма и инструменты измерения</translation>
    </message>
</context>
<context>
    <name>My_ColorSlider</name>
    <message>
        <source>色标</source>
        <translation>Цветовая шкала</translation>
    </message>
</context>
</TS>
