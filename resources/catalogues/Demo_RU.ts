<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="zh_CN">
<context>
    <name>MainWindow</name>
    <message>
        <source>Therma Desk</source>
        <translation>Therma Desk</translation>
    </message>
    <message>
        <source>正在等待连接...</source>
        <translation>Ожидание подключения...</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>断开</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>用户手册</source>
        <translation>Руководство пользователя</translation>
    </message>
    <message>
        <source>U盘模式</source>
        <translation>Режим USB-накопителя</translation>
    </message>
    <message>
        <source>投屏模式</source>
        <translation>Режим трансляции экрана</translation>
    </message>
    <message>
        <source>已断开连接</source>
        <translation>Отключено</translation>
    </message>
</context>
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
<context>
    <name>camer_window</name>
    <message>
        <source>Therma Desk</source>
        <translation>Therma Desk</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Сделать снимок</translation>
    </message>
    <message>
        <source>报警设置</source>
        <translation>Настройки тревоги</translation>
    </message>
    <message>
        <source>启用报警</source>
        <translation>Включить тревогу</translation>
    </message>
    <message>
        <source>声音报警</source>
        <translation>Звуковой сигнал</translation>
    </message>
    <message>
        <source>产生报警文件</source>
        <translation>Сохранять файлы тревог</translation>
    </message>
    <message>
        <source>报警信息</source>
        <translation>Данные тревоги</translation>
    </message>
    <message>
        <source>最大温度</source>
        <translation>Макс. температура</translation>
    </message>
    <message>
        <source>报警阈值</source>
        <translation>Порог тревоги</translation>
    </message>
    <message>
        <source>发射率</source>
        <translation>Коэф. излучения</translation>
    </message>
    <message>
        <source>停止当前报警</source>
        <translation>Остановить тревогу</translation>
    </message>
    <message>
        <source>报警历史</source>
        <translation>Журнал тревог</translation>
    </message>
    <message>
        <source>报警历史</source>
        <comment>tab title</comment>
        <translation>Журнал тревог</translation>
    </message>
    <message>
        <source>保存的文件</source>
        <translation>Сохранить файл</translation>
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
        <translation>Язык</translation>
    </message>
    <message>
        <source>报警历史路径</source>
        <translation>Папка журнала тревог</translation>
    </message>
    <message>
        <source>选择一个目录</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Подтвердить</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>改动将在应用重启后生效!</source>
        <translation>Изменения вступят в силу после перезапуска приложения!</translation>
    </message>
</context>
</TS>
