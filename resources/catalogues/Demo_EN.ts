<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>Analysis_Widget</name>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>点测温</source>
        <translation>Point measurement</translation>
    </message>
    <message>
        <source>线测温</source>
        <translation>Line measurement</translation>
    </message>
    <message>
        <source>矩形测温</source>
        <translation>Rectangle measurement</translation>
    </message>
    <message>
        <source>圆形测温</source>
        <translation>Circle measurement</translation>
    </message>
    <message>
        <source>删除所选工具</source>
        <translation>Delete the selected tool</translation>
    </message>
    <message>
        <source>清除所有工具</source>
        <translation>Delete all tools</translation>
    </message>
    <message>
        <source>工具颜色</source>
        <translation>Tool colour</translation>
    </message>
    <message>
        <source>导出报告</source>
        <translation>Export report</translation>
    </message>
    <message>
        <source>温度单位</source>
        <translation>Temperature unit</translation>
    </message>
    <message>
        <source>图像信息</source>
        <translation>Image information</translation>
    </message>
    <message>
        <source>文件名称:</source>
        <translation>File name:</translation>
    </message>
    <message>
        <source>文件大小:</source>
        <translation>File size:</translation>
    </message>
    <message>
        <source>时间:</source>
        <translation>Time:</translation>
    </message>
    <message>
        <source>发射率:</source>
        <translation>Emissivity:</translation>
    </message>
    <message>
        <source>大小:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>单位:</source>
        <translation>Unit:</translation>
    </message>
    <message>
        <source>中心温度:</source>
        <translation>Centre temperature:</translation>
    </message>
    <message>
        <source>最高温度:</source>
        <translation>Maximum temperature:</translation>
    </message>
    <message>
        <source>最低温度:</source>
        <translation>Minimum temperature:</translation>
    </message>
    <message>
        <source>平均温度:</source>
        <translation>Average temperature:</translation>
    </message>
    <message>
        <source>温度信息</source>
        <translation>Temperature information</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>高</source>
        <translation>High</translation>
    </message>
    <message>
        <source>低</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>点</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>线</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>圆</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>颜色选择</source>
        <translation>Colour choice</translation>
    </message>
    <message>
        <source>保存的文件</source>
        <translation>Save file</translation>
    </message>
    <message>
        <source>Items files(*.pdf)</source>
        <translation>Items files(*.pdf)</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>导出文件成功!</source>
        <translation>File exported successfully!</translation>
    </message>
    <message>
        <source>测温信息</source>
        <translation>Measurement information</translation>
    </message>
</context>
<context>
    <name>BrowserMenu</name>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>导出温度 (CSV)...</source>
        <translation>Export temperatures (CSV)...</translation>
    </message>
    <message>
        <source>导出温度 (TIFF)...</source>
        <translation>Export temperatures (TIFF)...</translation>
    </message>
    <message>
        <source>导出图片 (PNG)...</source>
        <translation>Export pictures (PNG)...</translation>
    </message>
    <message>
        <source>导出报告 (PDF)...</source>
        <translation>Export reports (PDF)...</translation>
    </message>
    <message>
        <source>复制到文件夹...</source>
        <translation>Copy to a folder...</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Show in the file manager</translation>
    </message>
    <message>
        <source>选择一个目录</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>无法打开文件夹“%1”。</source>
        <translation>The folder “%1” cannot be opened.</translation>
    </message>
</context>
<context>
    <name>CoordinatesDialog</name>
    <message>
        <source>起点 X:</source>
        <translation>Start X:</translation>
    </message>
    <message>
        <source>起点 Y:</source>
        <translation>Start Y:</translation>
    </message>
    <message>
        <source>终点 X:</source>
        <translation>End X:</translation>
    </message>
    <message>
        <source>终点 Y:</source>
        <translation>End Y:</translation>
    </message>
    <message>
        <source>第一角 X:</source>
        <translation>First corner X:</translation>
    </message>
    <message>
        <source>第一角 Y:</source>
        <translation>First corner Y:</translation>
    </message>
    <message>
        <source>对角 X:</source>
        <translation>Opposite corner X:</translation>
    </message>
    <message>
        <source>对角 Y:</source>
        <translation>Opposite corner Y:</translation>
    </message>
    <message>
        <source>圆心 X:</source>
        <translation>Centre X:</translation>
    </message>
    <message>
        <source>圆心 Y:</source>
        <translation>Centre Y:</translation>
    </message>
    <message>
        <source>半径:</source>
        <translation>Radius:</translation>
    </message>
    <message>
        <source>坐标</source>
        <translation>Coordinates</translation>
    </message>
    <message>
        <source>坐标 - %1</source>
        <translation>Coordinates - %1</translation>
    </message>
    <message>
        <source>类型:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>这些数值不能构成图像内的工具。</source>
        <translation>These numbers make no tool inside the picture.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
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
        <translation>Coordinates...</translation>
    </message>
    <message>
        <source>按坐标新建...</source>
        <translation>New by coordinates...</translation>
    </message>
</context>
<context>
    <name>DetailsText</name>
    <message>
        <source>最高</source>
        <translation>Highest</translation>
    </message>
    <message>
        <source>最低</source>
        <translation>Lowest</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>标准差</source>
        <translation>Standard deviation</translation>
    </message>
    <message>
        <source>中位数</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>像素</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>高于 %1 (%)</source>
        <translation>Above %1 (%)</translation>
    </message>
    <message>
        <source>低于 %1 (%)</source>
        <translation>Below %1 (%)</translation>
    </message>
    <message>
        <source>温差 ΔT (%1)</source>
        <translation>Difference ΔT (%1)</translation>
    </message>
    <message>
        <source>此工具不含任何像素：表格显示的是计算的起始值。</source>
        <translation>This tool covers no pixel: the table shows the values that its calculation starts from.</translation>
    </message>
    <message>
        <source>没有温度读数的像素：%1。此处不计入。</source>
        <translation>Pixels without a reading: %1. They are left out here.</translation>
    </message>
    <message>
        <source>表格中的最高值为 %1：表格从该值开始比较，而这里没有更热的像素。</source>
        <translation>The table says %1 for the highest: it starts comparing there, and no pixel here is hotter.</translation>
    </message>
    <message>
        <source>表格中的最低值为 %1：表格从该值开始比较，而这里没有更冷的像素。</source>
        <translation>The table says %1 for the lowest: it starts comparing there, and no pixel here is colder.</translation>
    </message>
    <message>
        <source>表格中的平均值为 %1：表格以单精度求和，因此末位有偏差。</source>
        <translation>The table says %1 for the average: it adds up in single precision, which changes the last digit.</translation>
    </message>
</context>
<context>
    <name>HistogramTexts</name>
    <message>
        <source>整幅图像</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>温度</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>像素数</source>
        <translation>Pixels</translation>
    </message>
</context>
<context>
    <name>LookingMenu</name>
    <message>
        <source>等温线...</source>
        <translation>Isotherm...</translation>
    </message>
    <message>
        <source>校正发射率...</source>
        <translation>Correct for emissivity...</translation>
    </message>
</context>
<context>
    <name>LookingTexts</name>
    <message>
        <source>已校正: ε %1 → %2, 反射温度 %3</source>
        <translation>corrected: ε %1 → %2, reflected %3</translation>
    </message>
    <message>
        <source>拍摄时的发射率须为 %1 至 %2。请输入设备当时的设定值。</source>
        <translation>The stored emissivity has to be from %1 to %2. Type the one that the imager was set to.</translation>
    </message>
    <message>
        <source>发射率须为 %1 至 %2。更低时看到的几乎只是环境的反射。</source>
        <translation>The emissivity has to be from %1 to %2. Below, hardly anything but the surroundings is seen.</translation>
    </message>
    <message>
        <source>反射温度须为 %1 至 %2。</source>
        <translation>The reflected temperature has to be from %1 to %2.</translation>
    </message>
    <message>
        <source>没有温度: 来自此处的辐射少于仅由环境反射的辐射。</source>
        <translation>No temperature: less radiation came from here than the surroundings alone make it reflect.</translation>
    </message>
    <message>
        <source>没有温度: 超出 %1 至 %2。</source>
        <translation>No temperature: outside %1 to %2.</translation>
    </message>
    <message>
        <source>照片没有说明温度的单位, 因此无法校正。</source>
        <translation>The photograph does not say in which unit its temperatures are, so they cannot be corrected.</translation>
    </message>
    <message>
        <source>等温线: 高于 %1</source>
        <translation>Isotherm: above %1</translation>
    </message>
    <message>
        <source>等温线: 低于 %1</source>
        <translation>Isotherm: below %1</translation>
    </message>
    <message>
        <source>等温线: %1 至 %2</source>
        <translation>Isotherm: %1 to %2</translation>
    </message>
    <message>
        <source>等温线: %1 至 %2 以外</source>
        <translation>Isotherm: outside %1 to %2</translation>
    </message>
    <message>
        <source>界限不是数字。</source>
        <translation>A limit is not a number.</translation>
    </message>
    <message>
        <source>下限高于上限, 没有像素着色。</source>
        <translation>The lower limit is above the upper one: no pixel is coloured.</translation>
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
    <name>MeasurementMenu</name>
    <message>
        <source>保存测量...</source>
        <translation>Save measurements...</translation>
    </message>
    <message>
        <source>加载测量...</source>
        <translation>Load measurements...</translation>
    </message>
    <message>
        <source>应用上次的测量</source>
        <translation>Apply the last measurements</translation>
    </message>
    <message>
        <source>复制测量</source>
        <translation>Copy measurements</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>保存测量</source>
        <translation>Save measurements</translation>
    </message>
    <message>
        <source>加载测量</source>
        <translation>Load measurements</translation>
    </message>
    <message>
        <source>未能从文件“%1”加载测量，现有工具保持不变。
%2</source>
        <translation>No measurements could be loaded from the file “%1”; the tools stay as they are.
%2</translation>
    </message>
    <message>
        <source>剪贴板中没有测量数据。
%1</source>
        <translation>There are no measurements in the clipboard.
%1</translation>
    </message>
    <message>
        <source>工具过多：%1（最多 %2）</source>
        <translation>too many tools: %1 (at most %2)</translation>
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
    <message>
        <source>色标，最高 %1，最低 %2</source>
        <translation>Colour bar, highest %1, lowest %2</translation>
    </message>
</context>
<context>
    <name>Outcomes</name>
    <message>
        <source>无法读取（%1）</source>
        <translation>cannot be read (%1)</translation>
    </message>
    <message>
        <source>不是普通文件</source>
        <translation>is not a regular file</translation>
    </message>
    <message>
        <source>文件过大（%1 字节）</source>
        <translation>the file is too large (%1 bytes)</translation>
    </message>
    <message>
        <source>文件不完整（%1 字节）</source>
        <translation>the file is incomplete (%1 bytes)</translation>
    </message>
    <message>
        <source>不是受支持设备的照片（机器ID %1）</source>
        <translation>not a photograph of a supported imager (machine ID %1)</translation>
    </message>
    <message>
        <source>目标文件夹中已有同名文件</source>
        <translation>a file of this name is already in the folder</translation>
    </message>
    <message>
        <source>无法写入（%1）</source>
        <translation>cannot be written (%1)</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>色标和温度</source>
        <translation>Colour bar with temperatures</translation>
    </message>
    <message>
        <source>测量值</source>
        <translation>Measured values</translation>
    </message>
    <message>
        <source>保存图片</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>%1 倍</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>放大:</source>
        <translation>Scale:</translation>
    </message>
    <message>
        <source>大小:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>%1 × %2 像素</source>
        <translation>%1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>PlotSaving</name>
    <message>
        <source>保存曲线图</source>
        <translation>Save plot</translation>
    </message>
    <message>
        <source>文件“%1”未能写入，原有文件保持不变。
%2</source>
        <translation>The file “%1” could not be written; a file that was there stays as it was.
%2</translation>
    </message>
</context>
<context>
    <name>ProfileTexts</name>
    <message>
        <source>沿直线的距离</source>
        <translation>Distance along the line</translation>
    </message>
    <message>
        <source>温度</source>
        <translation>Temperature</translation>
    </message>
</context>
<context>
    <name>SelectionJob</name>
    <message>
        <source>正在写入文件</source>
        <translation>Writing files</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message numerus="yes">
        <source>已在文件夹“%1”中写入 %n 个文件。</source>
        <translation>
            <numerusform>%n file was written to the folder “%1”.</numerusform>
            <numerusform>%n files were written to the folder “%1”.</numerusform>
        </translation>
    </message>
    <message>
        <source>没有写入任何文件。</source>
        <translation>No file was written.</translation>
    </message>
    <message numerus="yes">
        <source>操作已取消，还有 %n 张照片未处理。</source>
        <translation>
            <numerusform>Cancelled; %n photograph was left out.</numerusform>
            <numerusform>Cancelled; %n photographs were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 张照片未能处理：</source>
        <translation>
            <numerusform>%n photograph failed:</numerusform>
            <numerusform>%n photographs failed:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 张，见详细信息。</source>
        <translation>
            <numerusform>and %n more, see the details.</numerusform>
            <numerusform>and %n more, see the details.</numerusform>
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
        <translation>Save picture</translation>
    </message>
    <message>
        <source>保存温度</source>
        <translation>Save temperatures</translation>
    </message>
    <message>
        <source>文件“%1”未能写入，原有文件保持不变。
%2</source>
        <translation>The file “%1” could not be written; a file that was there stays as it was.
%2</translation>
    </message>
    <message>
        <source>保存校正后的温度</source>
        <translation>Save corrected temperatures</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>复制图片</source>
        <translation>Copy picture</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>Copy table</translation>
    </message>
    <message>
        <source>复制所选行</source>
        <translation>Copy selected row</translation>
    </message>
    <message>
        <source>保存图片...</source>
        <translation>Save picture...</translation>
    </message>
    <message>
        <source>保存温度...</source>
        <translation>Save temperatures...</translation>
    </message>
    <message>
        <source>保存校正后的温度...</source>
        <translation>Save corrected temperatures...</translation>
    </message>
</context>
<context>
    <name>analysis::CorrectionDialog</name>
    <message>
        <source>反射温度:</source>
        <translation>Reflected temperature:</translation>
    </message>
    <message>
        <source>校正发射率</source>
        <translation>Correct for emissivity</translation>
    </message>
    <message>
        <source>不校正</source>
        <translation>Switch off</translation>
    </message>
    <message>
        <source>照片中的发射率:</source>
        <translation>In the photograph:</translation>
    </message>
    <message>
        <source>拍摄时的发射率:</source>
        <translation>Stored emissivity:</translation>
    </message>
    <message>
        <source>实际发射率:</source>
        <translation>Other emissivity:</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>%1, 最高: %2 → %3 %4</source>
        <translation>%1, hottest pixel: %2 → %3 %4</translation>
    </message>
    <message>
        <source>%1, 最高: %2</source>
        <translation>%1, hottest pixel: %2</translation>
    </message>
    <message>
        <source>没有温度的像素: %1</source>
        <translation>Pixels without a temperature: %1</translation>
    </message>
</context>
<context>
    <name>analysis::DetailsWindow</name>
    <message>
        <source>详细数据...</source>
        <translation>Details...</translation>
    </message>
    <message>
        <source>详细数据</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>阈值</source>
        <translation>Threshold</translation>
    </message>
    <message>
        <source>此区域的数值</source>
        <translation>Value of this area</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>输入的温度</source>
        <translation>Typed temperature</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>另一区域的数值</source>
        <translation>Value of the other area</translation>
    </message>
    <message>
        <source>参考温度</source>
        <translation>Reference temperature</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>Copy table</translation>
    </message>
    <message>
        <source>阈值:</source>
        <translation>Threshold:</translation>
    </message>
    <message>
        <source>比较对象</source>
        <translation>Compared with</translation>
    </message>
    <message>
        <source>温差:</source>
        <translation>Difference:</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>项目</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>存储的读数</source>
        <translation>Stored reading</translation>
    </message>
</context>
<context>
    <name>analysis::HistogramWindow</name>
    <message>
        <source>直方图...</source>
        <translation>Histogram...</translation>
    </message>
    <message>
        <source>直方图</source>
        <translation>Histogram</translation>
    </message>
    <message>
        <source>所选工具</source>
        <translation>Selected tool</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>对数坐标</source>
        <translation>Logarithmic</translation>
    </message>
    <message>
        <source>自动分组</source>
        <translation>Automatic bins</translation>
    </message>
    <message>
        <source>范围起点</source>
        <translation>Start of range</translation>
    </message>
    <message>
        <source>范围终点</source>
        <translation>End of range</translation>
    </message>
    <message>
        <source>下限</source>
        <translation>Lower limit</translation>
    </message>
    <message>
        <source>上限</source>
        <translation>Upper limit</translation>
    </message>
    <message>
        <source>区域</source>
        <translation>Area</translation>
    </message>
    <message>
        <source>组距</source>
        <translation>Width of bins</translation>
    </message>
    <message>
        <source>范围:</source>
        <translation>Range:</translation>
    </message>
    <message>
        <source>组距:</source>
        <translation>Width of bins:</translation>
    </message>
    <message>
        <source>界限:</source>
        <translation>Limits:</translation>
    </message>
    <message>
        <source>没有可显示的直方图：请检查区域、范围和组距。</source>
        <translation>No histogram: check area, range and width of bins.</translation>
    </message>
    <message>
        <source>其间: %1</source>
        <translation>Between them: %1</translation>
    </message>
</context>
<context>
    <name>analysis::IsothermDialog</name>
    <message>
        <source>高于下限</source>
        <translation>Above the lower limit</translation>
    </message>
    <message>
        <source>低于上限</source>
        <translation>Below the upper limit</translation>
    </message>
    <message>
        <source>两限之间</source>
        <translation>Between the limits</translation>
    </message>
    <message>
        <source>两限之外</source>
        <translation>Outside the limits</translation>
    </message>
    <message>
        <source>下限:</source>
        <translation>Lower limit:</translation>
    </message>
    <message>
        <source>上限:</source>
        <translation>Upper limit:</translation>
    </message>
    <message>
        <source>等温线</source>
        <translation>Isotherm</translation>
    </message>
    <message>
        <source>不着色</source>
        <translation>Switch off</translation>
    </message>
    <message>
        <source>着色:</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>With:</translation>
    </message>
    <message>
        <source>取自工具</source>
        <translation>From a tool</translation>
    </message>
    <message>
        <source>等温线的颜色</source>
        <translation>Colour of the isotherm</translation>
    </message>
    <message>
        <source>颜色: %1</source>
        <translation>With: %1</translation>
    </message>
    <message>
        <source>着色像素: %1 (%2 %)</source>
        <translation>Coloured pixels: %1 (%2 %)</translation>
    </message>
</context>
<context>
    <name>analysis::LargePicture</name>
    <message>
        <source>大图</source>
        <translation>Large picture</translation>
    </message>
    <message>
        <source>Ctrl+滚轮或 + 和 - 缩放，0 显示全图，拖动或方向键移动，Ctrl+C 复制</source>
        <translation>Zoom by Ctrl+wheel or + and −, 0 shows everything, drag or use the arrow keys to move, copy by Ctrl+C</translation>
    </message>
    <message>
        <source>放大倍率</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>analysis::Magnifier</name>
    <message>
        <source>放大镜</source>
        <translation>Magnifier</translation>
    </message>
    <message>
        <source>定格(空格键)</source>
        <translation>Freeze (Space)</translation>
    </message>
    <message>
        <source>滚轮或 + 和 - 缩放，定格后用方向键移动，Ctrl+C 复制数值</source>
        <translation>Zoom by wheel or + and −, move by arrow keys while frozen, copy the numbers by Ctrl+C</translation>
    </message>
    <message>
        <source>定格放大镜</source>
        <translation>Freeze the magnifier</translation>
    </message>
    <message>
        <source>像素数</source>
        <translation>Pixels</translation>
    </message>
</context>
<context>
    <name>analysis::MeasurementKeeping</name>
    <message>
        <source>随照片保存测量</source>
        <translation>Keep measurements with photographs</translation>
    </message>
    <message>
        <source>此选择未能保存。</source>
        <translation>This choice could not be saved.</translation>
    </message>
    <message>
        <source>测量未能与照片一起保存。
%1</source>
        <translation>The measurements could not be kept with the photograph.
%1</translation>
    </message>
</context>
<context>
    <name>analysis::ProfileWindow</name>
    <message>
        <source>温度曲线...</source>
        <translation>Profile...</translation>
    </message>
    <message>
        <source>温度曲线</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Lines</translation>
    </message>
    <message>
        <source>所选直线</source>
        <translation>Selected line</translation>
    </message>
    <message>
        <source>全部直线</source>
        <translation>All lines</translation>
    </message>
    <message>
        <source>没有直线：请在图像上画一条。</source>
        <translation>No line: draw one in the picture.</translation>
    </message>
</context>
<context>
    <name>analysis::ReadingSet</name>
    <message>
        <source>校正后的读数</source>
        <translation>Corrected readings</translation>
    </message>
    <message>
        <source>存储的读数</source>
        <translation>Stored readings</translation>
    </message>
</context>
<context>
    <name>analysis::SpotsWindow</name>
    <message>
        <source>热点和冷点...</source>
        <translation>Hot and cold spots...</translation>
    </message>
    <message>
        <source>热点和冷点</source>
        <translation>Hot and cold spots</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>Whole picture</translation>
    </message>
    <message>
        <source>热点</source>
        <translation>Hot spot</translation>
    </message>
    <message>
        <source>冷点</source>
        <translation>Cold spot</translation>
    </message>
    <message>
        <source> 像素</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>区域:</source>
        <translation>Area:</translation>
    </message>
    <message>
        <source>显示:</source>
        <translation>Show:</translation>
    </message>
    <message>
        <source>每种个数:</source>
        <translation>Of each kind:</translation>
    </message>
    <message>
        <source>最小间距:</source>
        <translation>Minimum distance:</translation>
    </message>
    <message>
        <source>放置为点</source>
        <translation>Place as points</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>Copy table</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>Rank</translation>
    </message>
    <message>
        <source>温度 (%1)</source>
        <translation>Temperature (%1)</translation>
    </message>
    <message>
        <source>工具过多：%1（最多 %2）</source>
        <translation>too many tools: %1 (at most %2)</translation>
    </message>
    <message>
        <source>保存热点和冷点</source>
        <translation>Save hot and cold spots</translation>
    </message>
</context>
<context>
    <name>analysis::ToolCommands</name>
    <message>
        <source>删除所选工具</source>
        <translation>Delete the selected tool</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>上一张照片</source>
        <translation>Previous photograph</translation>
    </message>
    <message>
        <source>下一张照片</source>
        <translation>Next photograph</translation>
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
    <message>
        <source>实时图像</source>
        <translation>Live picture</translation>
    </message>
    <message>
        <source>报警图像</source>
        <translation>Alarm picture</translation>
    </message>
    <message>
        <source>记录的图像</source>
        <translation>Pictures of the record</translation>
    </message>
</context>
<context>
    <name>dialogs</name>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
</context>
<context>
    <name>photo_window</name>
    <message>
        <source>移动磁盘</source>
        <translation>Removable disk</translation>
    </message>
    <message>
        <source>重新加载</source>
        <translation>Reload</translation>
    </message>
    <message>
        <source>列表视图</source>
        <translation>Table view</translation>
    </message>
    <message>
        <source>缩略图视图</source>
        <translation>Thumbnail view</translation>
    </message>
    <message>
        <source>图片信息</source>
        <translation>Image information</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>检查到U盘中同时含有K4710和K4715的文件
请选择打开哪一项？</source>
        <translation>The disk holds files of both K4710 and K4715.
Which shall be opened?</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>该图片解析失败，请确认型号是否正确!</source>
        <translation>The picture could not be parsed, please check that the model is right!</translation>
    </message>
    <message>
        <source>照片</source>
        <translation>Photographs</translation>
    </message>
</context>
<context>
    <name>plots::PlotView</name>
    <message>
        <source>显示全部</source>
        <translation>Show everything</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Save...</translation>
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
