<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="zh_CN">
<context>
    <name>MyLabel</name>
    <message>
        <source>热像图与测温工具</source>
        <translation>열화상과 측정 도구</translation>
    </message>
</context>
<context>
    <name>My_ColorSlider</name>
    <message>
        <source>色标</source>
        <translation>색상 막대</translation>
    </message>
</context>
</TS>
