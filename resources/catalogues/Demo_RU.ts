<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="zh_CN">
<context>
    <name>Analysis_Widget</name>
    <message>
        <source>选择</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>点测温</source>
        <translation>Измерение в точке</translation>
    </message>
    <message>
        <source>线测温</source>
        <translation>Измерение по линии</translation>
    </message>
    <message>
        <source>矩形测温</source>
        <translation>Измерение в прямоугольнике</translation>
    </message>
    <message>
        <source>圆形测温</source>
        <translation>Измерение в круге</translation>
    </message>
    <message>
        <source>删除所选工具</source>
        <translation>Удалить выбранный инструмент</translation>
    </message>
    <message>
        <source>清除所有工具</source>
        <translation>Удалить все инструменты</translation>
    </message>
    <message>
        <source>工具颜色</source>
        <translation>Цвет инструментов</translation>
    </message>
    <message>
        <source>导出报告</source>
        <translation>Экспорт отчёта</translation>
    </message>
    <message>
        <source>温度单位</source>
        <translation>Единицы температуры</translation>
    </message>
    <message>
        <source>图像信息</source>
        <translation>Данные снимка</translation>
    </message>
    <message>
        <source>文件名称:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>文件大小:</source>
        <translation>Размер файла:</translation>
    </message>
    <message>
        <source>时间:</source>
        <translation>Время:</translation>
    </message>
    <message>
        <source>发射率:</source>
        <translation>Коэф. излучения:</translation>
    </message>
    <message>
        <source>大小:</source>
        <translation>Размер:</translation>
    </message>
    <message>
        <source>单位:</source>
        <translation>Единицы:</translation>
    </message>
    <message>
        <source>中心温度:</source>
        <translation>Температура в центре:</translation>
    </message>
    <message>
        <source>最高温度:</source>
        <translation>Макс. температура:</translation>
    </message>
    <message>
        <source>最低温度:</source>
        <translation>Мин. температура:</translation>
    </message>
    <message>
        <source>平均温度:</source>
        <translation>Средняя температура:</translation>
    </message>
    <message>
        <source>温度信息</source>
        <translation>Данные о температуре</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Макс.</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Мин.</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>Средн.</translation>
    </message>
    <message>
        <source>点</source>
        <translation>Точка</translation>
    </message>
    <message>
        <source>线</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Прямоугольник</translation>
    </message>
    <message>
        <source>圆</source>
        <translation>Круг</translation>
    </message>
    <message>
        <source>颜色选择</source>
        <translation>Выбор цвета</translation>
    </message>
    <message>
        <source>保存的文件</source>
        <translation>Сохранить файл</translation>
    </message>
    <message>
        <source>Items files(*.pdf)</source>
        <translation>Items files(*.pdf)</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Уведомление</translation>
    </message>
    <message>
        <source>导出文件成功!</source>
        <translation>Файл успешно экспортирован!</translation>
    </message>
    <message>
        <source>测温信息</source>
        <translation>Результаты измерений</translation>
    </message>
</context>
<context>
    <name>BrowserMenu</name>
    <message>
        <source>打开</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>导出温度 (CSV)...</source>
        <translation>Экспорт температур (CSV)...</translation>
    </message>
    <message>
        <source>导出温度 (TIFF)...</source>
        <translation>Экспорт температур (TIFF)...</translation>
    </message>
    <message>
        <source>导出图片 (PNG)...</source>
        <translation>Экспорт изображений (PNG)...</translation>
    </message>
    <message>
        <source>导出报告 (PDF)...</source>
        <translation>Экспорт отчётов (PDF)...</translation>
    </message>
    <message>
        <source>复制到文件夹...</source>
        <translation>Копировать в папку...</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Показать в файловом менеджере</translation>
    </message>
    <message>
        <source>选择一个目录</source>
        <translation>Выберите папку</translation>
    </message>
    <message>
        <source>无法打开文件夹“%1”。</source>
        <translation>Не удалось открыть папку «%1».</translation>
    </message>
</context>
<context>
    <name>CoordinatesDialog</name>
    <message>
        <source>起点 X:</source>
        <translation>Начало X:</translation>
    </message>
    <message>
        <source>起点 Y:</source>
        <translation>Начало Y:</translation>
    </message>
    <message>
        <source>终点 X:</source>
        <translation>Конец X:</translation>
    </message>
    <message>
        <source>终点 Y:</source>
        <translation>Конец Y:</translation>
    </message>
    <message>
        <source>第一角 X:</source>
        <translation>Первый угол X:</translation>
    </message>
    <message>
        <source>第一角 Y:</source>
        <translation>Первый угол Y:</translation>
    </message>
    <message>
        <source>对角 X:</source>
        <translation>Противоположный угол X:</translation>
    </message>
    <message>
        <source>对角 Y:</source>
        <translation>Противоположный угол Y:</translation>
    </message>
    <message>
        <source>圆心 X:</source>
        <translation>Центр X:</translation>
    </message>
    <message>
        <source>圆心 Y:</source>
        <translation>Центр Y:</translation>
    </message>
    <message>
        <source>半径:</source>
        <translation>Радиус:</translation>
    </message>
    <message>
        <source>坐标</source>
        <translation>Координаты</translation>
    </message>
    <message>
        <source>坐标 - %1</source>
        <translation>Координаты - %1</translation>
    </message>
    <message>
        <source>类型:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>这些数值不能构成图像内的工具。</source>
        <translation>Эти числа не дают инструмента внутри снимка.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>%1 … %2</source>
        <translation>%1 … %2</translation>
    </message>
</context>
<context>
    <name>CoordinatesMenu</name>
    <message>
        <source>坐标...</source>
        <translation>Координаты...</translation>
    </message>
    <message>
        <source>按坐标新建...</source>
        <translation>Создать по координатам...</translation>
    </message>
</context>
<context>
    <name>DetailsText</name>
    <message>
        <source>最高</source>
        <translation>Максимум</translation>
    </message>
    <message>
        <source>最低</source>
        <translation>Минимум</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>Среднее</translation>
    </message>
    <message>
        <source>标准差</source>
        <translation>Стандартное отклонение</translation>
    </message>
    <message>
        <source>中位数</source>
        <translation>Медиана</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>像素</source>
        <translation>Пиксели</translation>
    </message>
    <message>
        <source>高于 %1 (%)</source>
        <translation>Выше %1 (%)</translation>
    </message>
    <message>
        <source>低于 %1 (%)</source>
        <translation>Ниже %1 (%)</translation>
    </message>
    <message>
        <source>温差 ΔT (%1)</source>
        <translation>Разность ΔT (%1)</translation>
    </message>
    <message>
        <source>此工具不含任何像素：表格显示的是计算的起始值。</source>
        <translation>Инструмент не охватывает ни одного пикселя: в таблице стоят начальные значения расчёта.</translation>
    </message>
    <message>
        <source>没有温度读数的像素：%1。此处不计入。</source>
        <translation>Пиксели без показаний: %1. Здесь они не учитываются.</translation>
    </message>
    <message>
        <source>表格中的最高值为 %1：表格从该值开始比较，而这里没有更热的像素。</source>
        <translation>В таблице максимум равен %1: сравнение начинается с этого значения, а более горячих пикселей здесь нет.</translation>
    </message>
    <message>
        <source>表格中的最低值为 %1：表格从该值开始比较，而这里没有更冷的像素。</source>
        <translation>В таблице минимум равен %1: сравнение начинается с этого значения, а более холодных пикселей здесь нет.</translation>
    </message>
    <message>
        <source>表格中的平均值为 %1：表格以单精度求和，因此末位有偏差。</source>
        <translation>В таблице среднее равно %1: она суммирует с одинарной точностью, из-за чего меняется последний знак.</translation>
    </message>
</context>
<context>
    <name>HistogramTexts</name>
    <message>
        <source>整幅图像</source>
        <translation>Весь снимок</translation>
    </message>
    <message>
        <source>温度</source>
        <translation>Температура</translation>
    </message>
    <message>
        <source>像素数</source>
        <translation>Пикселей</translation>
    </message>
</context>
<context>
    <name>LookingMenu</name>
    <message>
        <source>等温线...</source>
        <translation>Изотерма...</translation>
    </message>
    <message>
        <source>校正发射率...</source>
        <translation>Поправка на излучение...</translation>
    </message>
</context>
<context>
    <name>LookingTexts</name>
    <message>
        <source>已校正: ε %1 → %2, 反射温度 %3</source>
        <translation>исправлено: ε %1 → %2, отражение %3</translation>
    </message>
    <message>
        <source>拍摄时的发射率须为 %1 至 %2。请输入设备当时的设定值。</source>
        <translation>Коэффициент излучения снимка должен быть от %1 до %2. Введите тот, на который был настроен прибор.</translation>
    </message>
    <message>
        <source>发射率须为 %1 至 %2。更低时看到的几乎只是环境的反射。</source>
        <translation>Коэффициент излучения должен быть от %1 до %2. Ниже видно почти только отражение окружения.</translation>
    </message>
    <message>
        <source>反射温度须为 %1 至 %2。</source>
        <translation>Отражённая температура должна быть от %1 до %2.</translation>
    </message>
    <message>
        <source>没有温度: 来自此处的辐射少于仅由环境反射的辐射。</source>
        <translation>Нет температуры: отсюда пришло меньше излучения, чем даёт одно лишь отражение окружения.</translation>
    </message>
    <message>
        <source>没有温度: 超出 %1 至 %2。</source>
        <translation>Нет температуры: вне пределов от %1 до %2.</translation>
    </message>
    <message>
        <source>照片没有说明温度的单位, 因此无法校正。</source>
        <translation>В снимке не указана единица температур, поэтому исправить их нельзя.</translation>
    </message>
    <message>
        <source>等温线: 高于 %1</source>
        <translation>Изотерма: выше %1</translation>
    </message>
    <message>
        <source>等温线: 低于 %1</source>
        <translation>Изотерма: ниже %1</translation>
    </message>
    <message>
        <source>等温线: %1 至 %2</source>
        <translation>Изотерма: от %1 до %2</translation>
    </message>
    <message>
        <source>等温线: %1 至 %2 以外</source>
        <translation>Изотерма: вне пределов от %1 до %2</translation>
    </message>
    <message>
        <source>界限不是数字。</source>
        <translation>Граница не является числом.</translation>
    </message>
    <message>
        <source>下限高于上限, 没有像素着色。</source>
        <translation>Нижняя граница выше верхней: ни один пиксель не окрашен.</translation>
    </message>
</context>
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
    <name>MeasurementMenu</name>
    <message>
        <source>保存测量...</source>
        <translation>Сохранить измерения...</translation>
    </message>
    <message>
        <source>加载测量...</source>
        <translation>Загрузить измерения...</translation>
    </message>
    <message>
        <source>应用上次的测量</source>
        <translation>Применить последние измерения</translation>
    </message>
    <message>
        <source>复制测量</source>
        <translation>Копировать измерения</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>保存测量</source>
        <translation>Сохранить измерения</translation>
    </message>
    <message>
        <source>加载测量</source>
        <translation>Загрузить измерения</translation>
    </message>
    <message>
        <source>未能从文件“%1”加载测量，现有工具保持不变。
%2</source>
        <translation>Не удалось загрузить измерения из файла «%1»; инструменты остались без изменений.
%2</translation>
    </message>
    <message>
        <source>剪贴板中没有测量数据。
%1</source>
        <translation>В буфере обмена нет измерений.
%1</translation>
    </message>
    <message>
        <source>工具过多：%1（最多 %2）</source>
        <translation>слишком много инструментов: %1 (не более %2)</translation>
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
    <message>
        <source>色标，最高 %1，最低 %2</source>
        <translation>Цветовая шкала: макс. %1, мин. %2</translation>
    </message>
</context>
<context>
    <name>Outcomes</name>
    <message>
        <source>无法读取（%1）</source>
        <translation>не удалось прочитать (%1)</translation>
    </message>
    <message>
        <source>不是普通文件</source>
        <translation>не обычный файл</translation>
    </message>
    <message>
        <source>文件过大（%1 字节）</source>
        <translation>файл слишком велик (%1 байт)</translation>
    </message>
    <message>
        <source>文件不完整（%1 字节）</source>
        <translation>файл неполный (байт: %1)</translation>
    </message>
    <message>
        <source>不是受支持设备的照片（机器ID %1）</source>
        <translation>снимок неподдерживаемого прибора (ID прибора %1)</translation>
    </message>
    <message>
        <source>目标文件夹中已有同名文件</source>
        <translation>в папке уже есть файл с таким именем</translation>
    </message>
    <message>
        <source>无法写入（%1）</source>
        <translation>не удалось записать (%1)</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>色标和温度</source>
        <translation>Цветовая шкала с температурами</translation>
    </message>
    <message>
        <source>测量值</source>
        <translation>Измеренные значения</translation>
    </message>
    <message>
        <source>保存图片</source>
        <translation>Сохранение снимка</translation>
    </message>
    <message>
        <source>%1 倍</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Сохранить...</translation>
    </message>
    <message>
        <source>放大:</source>
        <translation>Масштаб:</translation>
    </message>
    <message>
        <source>大小:</source>
        <translation>Размер:</translation>
    </message>
    <message>
        <source>%1 × %2 像素</source>
        <translation>%1 × %2 пикс.</translation>
    </message>
</context>
<context>
    <name>PlotSaving</name>
    <message>
        <source>保存曲线图</source>
        <translation>Сохранение графика</translation>
    </message>
    <message>
        <source>文件“%1”未能写入，原有文件保持不变。
%2</source>
        <translation>Не удалось записать файл «%1»; прежний файл остался без изменений.
%2</translation>
    </message>
</context>
<context>
    <name>ProfileTexts</name>
    <message>
        <source>沿直线的距离</source>
        <translation>Расстояние вдоль линии</translation>
    </message>
    <message>
        <source>温度</source>
        <translation>Температура</translation>
    </message>
</context>
<context>
    <name>SelectionJob</name>
    <message>
        <source>正在写入文件</source>
        <translation>Запись файлов</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Уведомление</translation>
    </message>
    <message numerus="yes">
        <source>已在文件夹“%1”中写入 %n 个文件。</source>
        <translation>
            <numerusform>В папку «%1» записан %n файл.</numerusform>
            <numerusform>В папку «%1» записано %n файла.</numerusform>
            <numerusform>В папку «%1» записано %n файлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>没有写入任何文件。</source>
        <translation>Ни одного файла не записано.</translation>
    </message>
    <message numerus="yes">
        <source>操作已取消，还有 %n 张照片未处理。</source>
        <translation>
            <numerusform>Отменено. Не обработан %n снимок.</numerusform>
            <numerusform>Отменено. Не обработано %n снимка.</numerusform>
            <numerusform>Отменено. Не обработано %n снимков.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 张照片未能处理：</source>
        <translation>
            <numerusform>Не удалось обработать %n снимок:</numerusform>
            <numerusform>Не удалось обработать %n снимка:</numerusform>
            <numerusform>Не удалось обработать %n снимков:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 张，见详细信息。</source>
        <translation>
            <numerusform>и ещё %n снимок, см. подробности.</numerusform>
            <numerusform>и ещё %n снимка, см. подробности.</numerusform>
            <numerusform>и ещё %n снимков, см. подробности.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ViewExport</name>
    <message>
        <source>保存图片</source>
        <translation>Сохранение снимка</translation>
    </message>
    <message>
        <source>保存温度</source>
        <translation>Сохранение температур</translation>
    </message>
    <message>
        <source>文件“%1”未能写入，原有文件保持不变。
%2</source>
        <translation>Не удалось записать файл «%1»; прежний файл остался без изменений.
%2</translation>
    </message>
    <message>
        <source>保存校正后的温度</source>
        <translation>Сохранение исправленных температур</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>复制图片</source>
        <translation>Копировать снимок</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>Копировать таблицу</translation>
    </message>
    <message>
        <source>复制所选行</source>
        <translation>Копировать выбранную строку</translation>
    </message>
    <message>
        <source>保存图片...</source>
        <translation>Сохранить снимок...</translation>
    </message>
    <message>
        <source>保存温度...</source>
        <translation>Сохранить температуры...</translation>
    </message>
    <message>
        <source>保存校正后的温度...</source>
        <translation>Сохранить исправленные температуры...</translation>
    </message>
</context>
<context>
    <name>analysis::CorrectionDialog</name>
    <message>
        <source>反射温度:</source>
        <translation>Отражённая температура:</translation>
    </message>
    <message>
        <source>校正发射率</source>
        <translation>Поправка на излучение</translation>
    </message>
    <message>
        <source>不校正</source>
        <translation>Выключить</translation>
    </message>
    <message>
        <source>照片中的发射率:</source>
        <translation>В снимке:</translation>
    </message>
    <message>
        <source>拍摄时的发射率:</source>
        <translation>Коэф. излучения снимка:</translation>
    </message>
    <message>
        <source>实际发射率:</source>
        <translation>Другой коэф. излучения:</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Весь снимок</translation>
    </message>
    <message>
        <source>%1, 最高: %2 → %3 %4</source>
        <translation>%1, самый горячий пиксель: %2 → %3 %4</translation>
    </message>
    <message>
        <source>%1, 最高: %2</source>
        <translation>%1, самый горячий пиксель: %2</translation>
    </message>
    <message>
        <source>没有温度的像素: %1</source>
        <translation>Пикселей без температуры: %1</translation>
    </message>
</context>
<context>
    <name>analysis::DetailsWindow</name>
    <message>
        <source>详细数据...</source>
        <translation>Подробные данные...</translation>
    </message>
    <message>
        <source>详细数据</source>
        <translation>Подробные данные</translation>
    </message>
    <message>
        <source>阈值</source>
        <translation>Порог</translation>
    </message>
    <message>
        <source>此区域的数值</source>
        <translation>Значение этой области</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>输入的温度</source>
        <translation>Введённая температура</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Весь снимок</translation>
    </message>
    <message>
        <source>另一区域的数值</source>
        <translation>Значение другой области</translation>
    </message>
    <message>
        <source>参考温度</source>
        <translation>Опорная температура</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>Копировать таблицу</translation>
    </message>
    <message>
        <source>阈值:</source>
        <translation>Порог:</translation>
    </message>
    <message>
        <source>比较对象</source>
        <translation>Сравнивается с</translation>
    </message>
    <message>
        <source>温差:</source>
        <translation>Разность:</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>项目</source>
        <translation>Величина</translation>
    </message>
    <message>
        <source>存储的读数</source>
        <translation>Сохранённое показание</translation>
    </message>
</context>
<context>
    <name>analysis::HistogramWindow</name>
    <message>
        <source>直方图...</source>
        <translation>Гистограмма...</translation>
    </message>
    <message>
        <source>直方图</source>
        <translation>Гистограмма</translation>
    </message>
    <message>
        <source>所选工具</source>
        <translation>Выбранный инструмент</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Весь снимок</translation>
    </message>
    <message>
        <source>对数坐标</source>
        <translation>Логарифмическая шкала</translation>
    </message>
    <message>
        <source>自动分组</source>
        <translation>Интервалы автоматически</translation>
    </message>
    <message>
        <source>范围起点</source>
        <translation>Начало диапазона</translation>
    </message>
    <message>
        <source>范围终点</source>
        <translation>Конец диапазона</translation>
    </message>
    <message>
        <source>下限</source>
        <translation>Нижняя граница</translation>
    </message>
    <message>
        <source>上限</source>
        <translation>Верхняя граница</translation>
    </message>
    <message>
        <source>区域</source>
        <translation>Область</translation>
    </message>
    <message>
        <source>组距</source>
        <translation>Ширина интервала</translation>
    </message>
    <message>
        <source>范围:</source>
        <translation>Диапазон:</translation>
    </message>
    <message>
        <source>组距:</source>
        <translation>Ширина интервала:</translation>
    </message>
    <message>
        <source>界限:</source>
        <translation>Границы:</translation>
    </message>
    <message>
        <source>没有可显示的直方图：请检查区域、范围和组距。</source>
        <translation>Гистограммы нет: проверьте область, диапазон и ширину интервала.</translation>
    </message>
    <message>
        <source>其间: %1</source>
        <translation>Между ними: %1</translation>
    </message>
</context>
<context>
    <name>analysis::IsothermDialog</name>
    <message>
        <source>高于下限</source>
        <translation>Выше нижней границы</translation>
    </message>
    <message>
        <source>低于上限</source>
        <translation>Ниже верхней границы</translation>
    </message>
    <message>
        <source>两限之间</source>
        <translation>Между границами</translation>
    </message>
    <message>
        <source>两限之外</source>
        <translation>Вне границ</translation>
    </message>
    <message>
        <source>下限:</source>
        <translation>Нижняя граница:</translation>
    </message>
    <message>
        <source>上限:</source>
        <translation>Верхняя граница:</translation>
    </message>
    <message>
        <source>等温线</source>
        <translation>Изотерма</translation>
    </message>
    <message>
        <source>不着色</source>
        <translation>Выключить</translation>
    </message>
    <message>
        <source>着色:</source>
        <translation>Окрасить:</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>Цвет:</translation>
    </message>
    <message>
        <source>取自工具</source>
        <translation>Из инструмента</translation>
    </message>
    <message>
        <source>等温线的颜色</source>
        <translation>Цвет изотермы</translation>
    </message>
    <message>
        <source>颜色: %1</source>
        <translation>Цвет: %1</translation>
    </message>
    <message>
        <source>着色像素: %1 (%2 %)</source>
        <translation>Окрашено пикселей: %1 (%2 %)</translation>
    </message>
</context>
<context>
    <name>analysis::LargePicture</name>
    <message>
        <source>大图</source>
        <translation>Крупный снимок</translation>
    </message>
    <message>
        <source>Ctrl+滚轮或 + 和 - 缩放，0 显示全图，拖动或方向键移动，Ctrl+C 复制</source>
        <translation>Масштаб: Ctrl+колесо или + и −; 0 — весь снимок; перемещение мышью или стрелками; Ctrl+C копирует</translation>
    </message>
    <message>
        <source>放大倍率</source>
        <translation>Масштаб</translation>
    </message>
</context>
<context>
    <name>analysis::Magnifier</name>
    <message>
        <source>放大镜</source>
        <translation>Лупа</translation>
    </message>
    <message>
        <source>定格(空格键)</source>
        <translation>Зафиксировать (пробел)</translation>
    </message>
    <message>
        <source>滚轮或 + 和 - 缩放，定格后用方向键移动，Ctrl+C 复制数值</source>
        <translation>Масштаб: колесо или + и −; при фиксации перемещение стрелками; Ctrl+C копирует числа</translation>
    </message>
    <message>
        <source>定格放大镜</source>
        <translation>Зафиксировать лупу</translation>
    </message>
    <message>
        <source>像素数</source>
        <translation>Пикселей</translation>
    </message>
</context>
<context>
    <name>analysis::MeasurementKeeping</name>
    <message>
        <source>随照片保存测量</source>
        <translation>Хранить измерения вместе со снимками</translation>
    </message>
    <message>
        <source>此选择未能保存。</source>
        <translation>Не удалось сохранить этот выбор.</translation>
    </message>
    <message>
        <source>测量未能与照片一起保存。
%1</source>
        <translation>Не удалось сохранить измерения вместе со снимком.
%1</translation>
    </message>
</context>
<context>
    <name>analysis::ProfileWindow</name>
    <message>
        <source>温度曲线...</source>
        <translation>Профиль...</translation>
    </message>
    <message>
        <source>温度曲线</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Линии</translation>
    </message>
    <message>
        <source>所选直线</source>
        <translation>Выбранная линия</translation>
    </message>
    <message>
        <source>全部直线</source>
        <translation>Все линии</translation>
    </message>
    <message>
        <source>没有直线：请在图像上画一条。</source>
        <translation>Линий нет: проведите линию на снимке.</translation>
    </message>
</context>
<context>
    <name>analysis::ReadingSet</name>
    <message>
        <source>校正后的读数</source>
        <translation>Исправленные показания</translation>
    </message>
    <message>
        <source>存储的读数</source>
        <translation>Сохранённые показания</translation>
    </message>
</context>
<context>
    <name>analysis::SpotsWindow</name>
    <message>
        <source>热点和冷点...</source>
        <translation>Горячие и холодные точки...</translation>
    </message>
    <message>
        <source>热点和冷点</source>
        <translation>Горячие и холодные точки</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Весь снимок</translation>
    </message>
    <message>
        <source>热点</source>
        <translation>Горячая точка</translation>
    </message>
    <message>
        <source>冷点</source>
        <translation>Холодная точка</translation>
    </message>
    <message>
        <source> 像素</source>
        <translation> пикс.</translation>
    </message>
    <message>
        <source>区域:</source>
        <translation>Область:</translation>
    </message>
    <message>
        <source>显示:</source>
        <translation>Показывать:</translation>
    </message>
    <message>
        <source>每种个数:</source>
        <translation>Каждого вида:</translation>
    </message>
    <message>
        <source>最小间距:</source>
        <translation>Минимальное расстояние:</translation>
    </message>
    <message>
        <source>放置为点</source>
        <translation>Поставить точками</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Сохранить...</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>Копировать таблицу</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>Ранг</translation>
    </message>
    <message>
        <source>温度 (%1)</source>
        <translation>Температура (%1)</translation>
    </message>
    <message>
        <source>工具过多：%1（最多 %2）</source>
        <translation>слишком много инструментов: %1 (не более %2)</translation>
    </message>
    <message>
        <source>保存热点和冷点</source>
        <translation>Сохранение горячих и холодных точек</translation>
    </message>
</context>
<context>
    <name>analysis::ToolCommands</name>
    <message>
        <source>删除所选工具</source>
        <translation>Удалить выбранный инструмент</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>上一张照片</source>
        <translation>Предыдущий снимок</translation>
    </message>
    <message>
        <source>下一张照片</source>
        <translation>Следующий снимок</translation>
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
    <message>
        <source>实时图像</source>
        <translation>Текущее изображение</translation>
    </message>
    <message>
        <source>报警图像</source>
        <translation>Изображение тревоги</translation>
    </message>
    <message>
        <source>记录的图像</source>
        <translation>Изображения записи</translation>
    </message>
</context>
<context>
    <name>dialogs</name>
    <message>
        <source>警告</source>
        <translation>Предупреждение</translation>
    </message>
</context>
<context>
    <name>photo_window</name>
    <message>
        <source>移动磁盘</source>
        <translation>Съёмный диск</translation>
    </message>
    <message>
        <source>重新加载</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>列表视图</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>缩略图视图</source>
        <translation>Эскизы</translation>
    </message>
    <message>
        <source>图片信息</source>
        <translation>Данные снимка</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Уведомление</translation>
    </message>
    <message>
        <source>检查到U盘中同时含有K4710和K4715的文件
请选择打开哪一项？</source>
        <translation>На диске есть файлы K4710 и K4715.
Какие открыть?</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>№</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>该图片解析失败，请确认型号是否正确!</source>
        <translation>Не удалось прочитать снимок. Проверьте, верно ли выбрана модель!</translation>
    </message>
    <message>
        <source>照片</source>
        <translation>Снимки</translation>
    </message>
</context>
<context>
    <name>plots::PlotView</name>
    <message>
        <source>显示全部</source>
        <translation>Показать всё</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Сохранить...</translation>
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
