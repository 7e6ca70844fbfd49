<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>MainWindow</name>
    <message>
        <source>Therma Desk</source>
        <translation>Therma Desk</translation>
    </message>
    <message>
        <source>正在等待连接...</source>
        <translation>Waiting for a connection...</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>断开</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>用户手册</source>
        <translation>User&apos;s manual</translation>
    </message>
    <message>
        <source>U盘模式</source>
        <translation>USB flash drive mode</translation>
    </message>
    <message>
        <source>投屏模式</source>
        <translation>Screen mode</translation>
    </message>
    <message>
        <source>已断开连接</source>
        <translation>Disconnected</translation>
    </message>
</context>
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
<context>
    <name>camer_window</name>
    <message>
        <source>Therma Desk</source>
        <translation>Therma Desk</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Take photo</translation>
    </message>
    <message>
        <source>报警设置</source>
        <translation>Alarm settings</translation>
    </message>
    <message>
        <source>启用报警</source>
        <translation>Enable alarm</translation>
    </message>
    <message>
        <source>声音报警</source>
        <translation>Sound alarm</translation>
    </message>
    <message>
        <source>产生报警文件</source>
        <translation>Generate alarm files</translation>
    </message>
    <message>
        <source>报警信息</source>
        <translation>Alarm information</translation>
    </message>
    <message>
        <source>最大温度</source>
        <translation>Max temperature</translation>
    </message>
    <message>
        <source>报警阈值</source>
        <translation>Alarm threshold</translation>
    </message>
    <message>
        <source>发射率</source>
        <translation>Emissivity</translation>
    </message>
    <message>
        <source>停止当前报警</source>
        <translation>Stop current alarm</translation>
    </message>
    <message>
        <source>报警历史</source>
        <translation>Alarm history</translation>
    </message>
    <message>
        <source>报警历史</source>
        <comment>tab title</comment>
        <translation>Alarm history</translation>
    </message>
    <message>
        <source>保存的文件</source>
        <translation>Save file</translation>
    </message>
</context>
<context>
    <name>seting</name>
    <message>
        <source>Therma Desk</source>
        <translation>Therma Desk</translation>
    </message>
    <message>
        <source>语言</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>报警历史路径</source>
        <translation>Alarm history path</translation>
    </message>
    <message>
        <source>选择一个目录</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>改动将在应用重启后生效!</source>
        <translation>Changes will take effect after the application restarts!</translation>
    </message>
</context>
</TS>
