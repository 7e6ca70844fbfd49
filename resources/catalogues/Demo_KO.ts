<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="zh_CN">
<context>
    <name>Analysis_Widget</name>
    <message>
        <source>选择</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>点测温</source>
        <translation>점 측정</translation>
    </message>
    <message>
        <source>线测温</source>
        <translation>선 측정</translation>
    </message>
    <message>
        <source>矩形测温</source>
        <translation>사각형 측정</translation>
    </message>
    <message>
        <source>圆形测温</source>
        <translation>원 측정</translation>
    </message>
    <message>
        <source>删除所选工具</source>
        <translation>선택한 도구 삭제</translation>
    </message>
    <message>
        <source>清除所有工具</source>
        <translation>모든 도구 지우기</translation>
    </message>
    <message>
        <source>工具颜色</source>
        <translation>도구 색상</translation>
    </message>
    <message>
        <source>导出报告</source>
        <translation>보고서 내보내기</translation>
    </message>
    <message>
        <source>温度单位</source>
        <translation>온도 단위</translation>
    </message>
    <message>
        <source>图像信息</source>
        <translation>이미지 정보</translation>
    </message>
    <message>
        <source>文件名称:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>文件大小:</source>
        <translation>파일 크기:</translation>
    </message>
    <message>
        <source>时间:</source>
        <translation>시간:</translation>
    </message>
    <message>
        <source>发射率:</source>
        <translation>방사율:</translation>
    </message>
    <message>
        <source>大小:</source>
        <translation>크기:</translation>
    </message>
    <message>
        <source>单位:</source>
        <translation>단위:</translation>
    </message>
    <message>
        <source>中心温度:</source>
        <translation>중심 온도:</translation>
    </message>
    <message>
        <source>最高温度:</source>
        <translation>최고 온도:</translation>
    </message>
    <message>
        <source>最低温度:</source>
        <translation>최저 온도:</translation>
    </message>
    <message>
        <source>平均温度:</source>
        <translation>평균 온도:</translation>
    </message>
    <message>
        <source>温度信息</source>
        <translation>온도 정보</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>高</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>低</source>
        <translation>최저</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>평균</translation>
    </message>
    <message>
        <source>点</source>
        <translation>점</translation>
    </message>
    <message>
        <source>线</source>
        <translation>선</translation>
    </message>
    <message>
        <source>矩形</source>
        <translation>사각형</translation>
    </message>
    <message>
        <source>圆</source>
        <translation>원</translation>
    </message>
    <message>
        <source>颜色选择</source>
        <translation>색상 선택</translation>
    </message>
    <message>
        <source>保存的文件</source>
        <translation>파일 저장</translation>
    </message>
    <message>
        <source>Items files(*.pdf)</source>
        <translation>Items files(*.pdf)</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>导出文件成功!</source>
        <translation>파일을 내보냈습니다!</translation>
    </message>
    <message>
        <source>测温信息</source>
        <translation>측정 정보</translation>
    </message>
</context>
<context>
    <name>BrowserMenu</name>
    <message>
        <source>打开</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>导出温度 (CSV)...</source>
        <translation>온도 내보내기 (CSV)...</translation>
    </message>
    <message>
        <source>导出温度 (TIFF)...</source>
        <translation>온도 내보내기 (TIFF)...</translation>
    </message>
    <message>
        <source>导出图片 (PNG)...</source>
        <translation>이미지 내보내기 (PNG)...</translation>
    </message>
    <message>
        <source>导出报告 (PDF)...</source>
        <translation>보고서 내보내기 (PDF)...</translation>
    </message>
    <message>
        <source>复制到文件夹...</source>
        <translation>폴더에 복사...</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>选择一个目录</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>无法打开文件夹“%1”。</source>
        <translation>폴더 “%1”을(를) 열 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>CoordinatesDialog</name>
    <message>
        <source>起点 X:</source>
        <translation>시작점 X:</translation>
    </message>
    <message>
        <source>起点 Y:</source>
        <translation>시작점 Y:</translation>
    </message>
    <message>
        <source>终点 X:</source>
        <translation>끝점 X:</translation>
    </message>
    <message>
        <source>终点 Y:</source>
        <translation>끝점 Y:</translation>
    </message>
    <message>
        <source>第一角 X:</source>
        <translation>첫째 모서리 X:</translation>
    </message>
    <message>
        <source>第一角 Y:</source>
        <translation>첫째 모서리 Y:</translation>
    </message>
    <message>
        <source>对角 X:</source>
        <translation>반대 모서리 X:</translation>
    </message>
    <message>
        <source>对角 Y:</source>
        <translation>반대 모서리 Y:</translation>
    </message>
    <message>
        <source>圆心 X:</source>
        <translation>중심 X:</translation>
    </message>
    <message>
        <source>圆心 Y:</source>
        <translation>중심 Y:</translation>
    </message>
    <message>
        <source>半径:</source>
        <translation>반지름:</translation>
    </message>
    <message>
        <source>坐标</source>
        <translation>좌표</translation>
    </message>
    <message>
        <source>坐标 - %1</source>
        <translation>좌표 - %1</translation>
    </message>
    <message>
        <source>类型:</source>
        <translation>유형:</translation>
    </message>
    <message>
        <source>这些数值不能构成图像内的工具。</source>
        <translation>이 값으로는 이미지 안에 도구를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>유형</translation>
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
        <translation>좌표...</translation>
    </message>
    <message>
        <source>按坐标新建...</source>
        <translation>좌표로 새로 만들기...</translation>
    </message>
</context>
<context>
    <name>DetailsText</name>
    <message>
        <source>最高</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>最低</source>
        <translation>최저</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>평균</translation>
    </message>
    <message>
        <source>标准差</source>
        <translation>표준편차</translation>
    </message>
    <message>
        <source>中位数</source>
        <translation>중앙값</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>像素</source>
        <translation>픽셀</translation>
    </message>
    <message>
        <source>高于 %1 (%)</source>
        <translation>%1 초과 (%)</translation>
    </message>
    <message>
        <source>低于 %1 (%)</source>
        <translation>%1 미만 (%)</translation>
    </message>
    <message>
        <source>温差 ΔT (%1)</source>
        <translation>온도차 ΔT (%1)</translation>
    </message>
    <message>
        <source>此工具不含任何像素：表格显示的是计算的起始值。</source>
        <translation>이 도구에는 픽셀이 없습니다. 표에는 계산의 시작값이 표시됩니다.</translation>
    </message>
    <message>
        <source>没有温度读数的像素：%1。此处不计入。</source>
        <translation>온도 값이 없는 픽셀: %1. 여기서는 제외됩니다.</translation>
    </message>
    <message>
        <source>表格中的最高值为 %1：表格从该值开始比较，而这里没有更热的像素。</source>
        <translation>표의 최고값은 %1입니다. 표는 이 값부터 비교하는데 여기에는 더 뜨거운 픽셀이 없습니다.</translation>
    </message>
    <message>
        <source>表格中的最低值为 %1：表格从该值开始比较，而这里没有更冷的像素。</source>
        <translation>표의 최저값은 %1입니다. 표는 이 값부터 비교하는데 여기에는 더 차가운 픽셀이 없습니다.</translation>
    </message>
    <message>
        <source>表格中的平均值为 %1：表格以单精度求和，因此末位有偏差。</source>
        <translation>표의 평균값은 %1입니다. 표는 단정밀도로 합산하므로 마지막 자리가 달라집니다.</translation>
    </message>
</context>
<context>
    <name>HistogramTexts</name>
    <message>
        <source>整幅图像</source>
        <translation>전체 이미지</translation>
    </message>
    <message>
        <source>温度</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>像素数</source>
        <translation>픽셀 수</translation>
    </message>
</context>
<context>
    <name>LookingMenu</name>
    <message>
        <source>等温线...</source>
        <translation>등온선...</translation>
    </message>
    <message>
        <source>校正发射率...</source>
        <translation>방사율 보정...</translation>
    </message>
</context>
<context>
    <name>LookingTexts</name>
    <message>
        <source>已校正: ε %1 → %2, 反射温度 %3</source>
        <translation>보정됨: ε %1 → %2, 반사 온도 %3</translation>
    </message>
    <message>
        <source>拍摄时的发射率须为 %1 至 %2。请输入设备当时的设定值。</source>
        <translation>촬영 시 방사율은 %1에서 %2 사이여야 합니다. 장비에 설정되어 있던 값을 입력하세요.</translation>
    </message>
    <message>
        <source>发射率须为 %1 至 %2。更低时看到的几乎只是环境的反射。</source>
        <translation>방사율은 %1에서 %2 사이여야 합니다. 더 낮으면 거의 주변의 반사만 보입니다.</translation>
    </message>
    <message>
        <source>反射温度须为 %1 至 %2。</source>
        <translation>반사 온도는 %1에서 %2 사이여야 합니다.</translation>
    </message>
    <message>
        <source>没有温度: 来自此处的辐射少于仅由环境反射的辐射。</source>
        <translation>온도 없음: 여기서 온 복사가 주변의 반사만으로 생기는 것보다 적습니다.</translation>
    </message>
    <message>
        <source>没有温度: 超出 %1 至 %2。</source>
        <translation>온도 없음: %1에서 %2 범위 밖입니다.</translation>
    </message>
    <message>
        <source>照片没有说明温度的单位, 因此无法校正。</source>
        <translation>사진에 온도 단위가 없어 보정할 수 없습니다.</translation>
    </message>
    <message>
        <source>等温线: 高于 %1</source>
        <translation>등온선: %1 초과</translation>
    </message>
    <message>
        <source>等温线: 低于 %1</source>
        <translation>등온선: %1 미만</translation>
    </message>
    <message>
        <source>等温线: %1 至 %2</source>
        <translation>등온선: %1 ~ %2</translation>
    </message>
    <message>
        <source>等温线: %1 至 %2 以外</source>
        <translation>등온선: %1 ~ %2 범위 밖</translation>
    </message>
    <message>
        <source>界限不是数字。</source>
        <translation>한계가 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>下限高于上限, 没有像素着色。</source>
        <translation>하한이 상한보다 높아 색칠된 픽셀이 없습니다.</translation>
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
        <translation>연결 대기 중...</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>断开</source>
        <translation>연결 끊기</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>用户手册</source>
        <translation>사용 설명서</translation>
    </message>
    <message>
        <source>U盘模式</source>
        <translation>USB 드라이브 모드</translation>
    </message>
    <message>
        <source>投屏模式</source>
        <translation>화면 전송 모드</translation>
    </message>
    <message>
        <source>已断开连接</source>
        <translation>연결 끊김</translation>
    </message>
</context>
<context>
    <name>MeasurementMenu</name>
    <message>
        <source>保存测量...</source>
        <translation>측정 저장...</translation>
    </message>
    <message>
        <source>加载测量...</source>
        <translation>측정 불러오기...</translation>
    </message>
    <message>
        <source>应用上次的测量</source>
        <translation>마지막 측정 적용</translation>
    </message>
    <message>
        <source>复制测量</source>
        <translation>측정 복사</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>保存测量</source>
        <translation>측정 저장</translation>
    </message>
    <message>
        <source>加载测量</source>
        <translation>측정 불러오기</translation>
    </message>
    <message>
        <source>未能从文件“%1”加载测量，现有工具保持不变。
%2</source>
        <translation>“%1” 파일에서 측정을 불러오지 못했습니다. 도구는 그대로 유지됩니다.
%2</translation>
    </message>
    <message>
        <source>剪贴板中没有测量数据。
%1</source>
        <translation>클립보드에 측정 데이터가 없습니다.
%1</translation>
    </message>
    <message>
        <source>工具过多：%1（最多 %2）</source>
        <translation>도구가 너무 많습니다: %1(최대 %2)</translation>
    </message>
</context>
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
    <message>
        <source>色标，最高 %1，最低 %2</source>
        <translation>색상 막대, 최고 %1, 최저 %2</translation>
    </message>
</context>
<context>
    <name>Outcomes</name>
    <message>
        <source>无法读取（%1）</source>
        <translation>읽을 수 없음(%1)</translation>
    </message>
    <message>
        <source>不是普通文件</source>
        <translation>일반 파일이 아님</translation>
    </message>
    <message>
        <source>文件过大（%1 字节）</source>
        <translation>파일이 너무 큼(%1바이트)</translation>
    </message>
    <message>
        <source>文件不完整（%1 字节）</source>
        <translation>파일이 불완전함(%1바이트)</translation>
    </message>
    <message>
        <source>不是受支持设备的照片（机器ID %1）</source>
        <translation>지원되지 않는 장비의 사진(기기 ID %1)</translation>
    </message>
    <message>
        <source>目标文件夹中已有同名文件</source>
        <translation>폴더에 같은 이름의 파일이 이미 있음</translation>
    </message>
    <message>
        <source>无法写入（%1）</source>
        <translation>쓸 수 없음(%1)</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>色标和温度</source>
        <translation>온도가 있는 색상 막대</translation>
    </message>
    <message>
        <source>测量值</source>
        <translation>측정값</translation>
    </message>
    <message>
        <source>保存图片</source>
        <translation>이미지 저장</translation>
    </message>
    <message>
        <source>%1 倍</source>
        <translation>%1배</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>저장...</translation>
    </message>
    <message>
        <source>放大:</source>
        <translation>배율:</translation>
    </message>
    <message>
        <source>大小:</source>
        <translation>크기:</translation>
    </message>
    <message>
        <source>%1 × %2 像素</source>
        <translation>%1 × %2 픽셀</translation>
    </message>
</context>
<context>
    <name>PlotSaving</name>
    <message>
        <source>保存曲线图</source>
        <translation>그래프 저장</translation>
    </message>
    <message>
        <source>文件“%1”未能写入，原有文件保持不变。
%2</source>
        <translation>파일 “%1”을(를) 쓸 수 없습니다. 기존 파일은 그대로 남아 있습니다.
%2</translation>
    </message>
</context>
<context>
    <name>ProfileTexts</name>
    <message>
        <source>沿直线的距离</source>
        <translation>선을 따른 거리</translation>
    </message>
    <message>
        <source>温度</source>
        <translation>온도</translation>
    </message>
</context>
<context>
    <name>SelectionJob</name>
    <message>
        <source>正在写入文件</source>
        <translation>파일 쓰는 중</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message numerus="yes">
        <source>已在文件夹“%1”中写入 %n 个文件。</source>
        <translation>
            <numerusform>폴더 “%1”에 파일 %n개를 썼습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>没有写入任何文件。</source>
        <translation>파일을 하나도 쓰지 않았습니다.</translation>
    </message>
    <message numerus="yes">
        <source>操作已取消，还有 %n 张照片未处理。</source>
        <translation>
            <numerusform>취소되었습니다. 사진 %n장이 처리되지 않았습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n 张照片未能处理：</source>
        <translation>
            <numerusform>사진 %n장을 처리하지 못했습니다:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>另有 %n 张，见详细信息。</source>
        <translation>
            <numerusform>그 밖에 %n장이 있습니다. 자세한 내용을 참조하십시오.</numerusform>
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
        <translation>이미지 저장</translation>
    </message>
    <message>
        <source>保存温度</source>
        <translation>온도 저장</translation>
    </message>
    <message>
        <source>文件“%1”未能写入，原有文件保持不变。
%2</source>
        <translation>파일 “%1”을(를) 쓸 수 없습니다. 기존 파일은 그대로 남아 있습니다.
%2</translation>
    </message>
    <message>
        <source>保存校正后的温度</source>
        <translation>보정된 온도 저장</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>复制图片</source>
        <translation>이미지 복사</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>표 복사</translation>
    </message>
    <message>
        <source>复制所选行</source>
        <translation>선택한 행 복사</translation>
    </message>
    <message>
        <source>保存图片...</source>
        <translation>이미지 저장...</translation>
    </message>
    <message>
        <source>保存温度...</source>
        <translation>온도 저장...</translation>
    </message>
    <message>
        <source>保存校正后的温度...</source>
        <translation>보정된 온도 저장...</translation>
    </message>
</context>
<context>
    <name>analysis::CorrectionDialog</name>
    <message>
        <source>反射温度:</source>
        <translation>반사 온도:</translation>
    </message>
    <message>
        <source>校正发射率</source>
        <translation>방사율 보정</translation>
    </message>
    <message>
        <source>不校正</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>照片中的发射率:</source>
        <translation>사진의 방사율:</translation>
    </message>
    <message>
        <source>拍摄时的发射率:</source>
        <translation>촬영 시 방사율:</translation>
    </message>
    <message>
        <source>实际发射率:</source>
        <translation>실제 방사율:</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>전체 이미지</translation>
    </message>
    <message>
        <source>%1, 最高: %2 → %3 %4</source>
        <translation>%1, 최고: %2 → %3 %4</translation>
    </message>
    <message>
        <source>%1, 最高: %2</source>
        <translation>%1, 최고: %2</translation>
    </message>
    <message>
        <source>没有温度的像素: %1</source>
        <translation>온도가 없는 픽셀: %1</translation>
    </message>
</context>
<context>
    <name>analysis::DetailsWindow</name>
    <message>
        <source>详细数据...</source>
        <translation>상세 정보...</translation>
    </message>
    <message>
        <source>详细数据</source>
        <translation>상세 정보</translation>
    </message>
    <message>
        <source>阈值</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>此区域的数值</source>
        <translation>이 영역의 값</translation>
    </message>
    <message>
        <source>无</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>输入的温度</source>
        <translation>입력한 온도</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>전체 이미지</translation>
    </message>
    <message>
        <source>另一区域的数值</source>
        <translation>다른 영역의 값</translation>
    </message>
    <message>
        <source>参考温度</source>
        <translation>기준 온도</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>표 복사</translation>
    </message>
    <message>
        <source>阈值:</source>
        <translation>임계값:</translation>
    </message>
    <message>
        <source>比较对象</source>
        <translation>비교 대상</translation>
    </message>
    <message>
        <source>温差:</source>
        <translation>온도차:</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>项目</source>
        <translation>항목</translation>
    </message>
    <message>
        <source>存储的读数</source>
        <translation>저장된 값</translation>
    </message>
</context>
<context>
    <name>analysis::HistogramWindow</name>
    <message>
        <source>直方图...</source>
        <translation>히스토그램...</translation>
    </message>
    <message>
        <source>直方图</source>
        <translation>히스토그램</translation>
    </message>
    <message>
        <source>所选工具</source>
        <translation>선택한 도구</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>전체 이미지</translation>
    </message>
    <message>
        <source>对数坐标</source>
        <translation>로그 축</translation>
    </message>
    <message>
        <source>自动分组</source>
        <translation>자동 구간</translation>
    </message>
    <message>
        <source>范围起点</source>
        <translation>범위 시작</translation>
    </message>
    <message>
        <source>范围终点</source>
        <translation>범위 끝</translation>
    </message>
    <message>
        <source>下限</source>
        <translation>하한</translation>
    </message>
    <message>
        <source>上限</source>
        <translation>상한</translation>
    </message>
    <message>
        <source>区域</source>
        <translation>영역</translation>
    </message>
    <message>
        <source>组距</source>
        <translation>구간 너비</translation>
    </message>
    <message>
        <source>范围:</source>
        <translation>범위:</translation>
    </message>
    <message>
        <source>组距:</source>
        <translation>구간 너비:</translation>
    </message>
    <message>
        <source>界限:</source>
        <translation>한계:</translation>
    </message>
    <message>
        <source>没有可显示的直方图：请检查区域、范围和组距。</source>
        <translation>히스토그램이 없습니다. 영역, 범위, 구간 너비를 확인하세요.</translation>
    </message>
    <message>
        <source>其间: %1</source>
        <translation>그 사이: %1</translation>
    </message>
</context>
<context>
    <name>analysis::IsothermDialog</name>
    <message>
        <source>高于下限</source>
        <translation>하한 초과</translation>
    </message>
    <message>
        <source>低于上限</source>
        <translation>상한 미만</translation>
    </message>
    <message>
        <source>两限之间</source>
        <translation>두 한계 사이</translation>
    </message>
    <message>
        <source>两限之外</source>
        <translation>두 한계 밖</translation>
    </message>
    <message>
        <source>下限:</source>
        <translation>하한:</translation>
    </message>
    <message>
        <source>上限:</source>
        <translation>상한:</translation>
    </message>
    <message>
        <source>等温线</source>
        <translation>등온선</translation>
    </message>
    <message>
        <source>不着色</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>着色:</source>
        <translation>색칠:</translation>
    </message>
    <message>
        <source>颜色:</source>
        <translation>색:</translation>
    </message>
    <message>
        <source>取自工具</source>
        <translation>도구에서</translation>
    </message>
    <message>
        <source>等温线的颜色</source>
        <translation>등온선 색</translation>
    </message>
    <message>
        <source>颜色: %1</source>
        <translation>색: %1</translation>
    </message>
    <message>
        <source>着色像素: %1 (%2 %)</source>
        <translation>색칠된 픽셀: %1 (%2 %)</translation>
    </message>
</context>
<context>
    <name>analysis::LargePicture</name>
    <message>
        <source>大图</source>
        <translation>큰 이미지</translation>
    </message>
    <message>
        <source>Ctrl+滚轮或 + 和 - 缩放，0 显示全图，拖动或方向键移动，Ctrl+C 复制</source>
        <translation>Ctrl+휠이나 + 와 − 로 확대·축소, 0 은 전체 보기, 끌거나 방향키로 이동, Ctrl+C 로 복사</translation>
    </message>
    <message>
        <source>放大倍率</source>
        <translation>배율</translation>
    </message>
</context>
<context>
    <name>analysis::Magnifier</name>
    <message>
        <source>放大镜</source>
        <translation>돋보기</translation>
    </message>
    <message>
        <source>定格(空格键)</source>
        <translation>고정(스페이스바)</translation>
    </message>
    <message>
        <source>滚轮或 + 和 - 缩放，定格后用方向键移动，Ctrl+C 复制数值</source>
        <translation>휠이나 + 와 − 로 확대·축소, 고정 시 방향키로 이동, Ctrl+C 로 수치 복사</translation>
    </message>
    <message>
        <source>定格放大镜</source>
        <translation>돋보기 고정</translation>
    </message>
    <message>
        <source>像素数</source>
        <translation>픽셀 수</translation>
    </message>
</context>
<context>
    <name>analysis::MeasurementKeeping</name>
    <message>
        <source>随照片保存测量</source>
        <translation>사진별로 측정 기억</translation>
    </message>
    <message>
        <source>此选择未能保存。</source>
        <translation>이 선택을 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>测量未能与照片一起保存。
%1</source>
        <translation>측정을 사진과 함께 보관하지 못했습니다.
%1</translation>
    </message>
</context>
<context>
    <name>analysis::ProfileWindow</name>
    <message>
        <source>温度曲线...</source>
        <translation>온도 프로파일...</translation>
    </message>
    <message>
        <source>温度曲线</source>
        <translation>온도 프로파일</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>선</translation>
    </message>
    <message>
        <source>所选直线</source>
        <translation>선택한 선</translation>
    </message>
    <message>
        <source>全部直线</source>
        <translation>모든 선</translation>
    </message>
    <message>
        <source>没有直线：请在图像上画一条。</source>
        <translation>선이 없습니다. 이미지에 선을 그리세요.</translation>
    </message>
</context>
<context>
    <name>analysis::ReadingSet</name>
    <message>
        <source>校正后的读数</source>
        <translation>보정된 측정값</translation>
    </message>
    <message>
        <source>存储的读数</source>
        <translation>저장된 측정값</translation>
    </message>
</context>
<context>
    <name>analysis::SpotsWindow</name>
    <message>
        <source>热点和冷点...</source>
        <translation>고온점과 저온점...</translation>
    </message>
    <message>
        <source>热点和冷点</source>
        <translation>고온점과 저온점</translation>
    </message>
    <message>
        <source>整幅图像</source>
        <translation>전체 이미지</translation>
    </message>
    <message>
        <source>热点</source>
        <translation>고온점</translation>
    </message>
    <message>
        <source>冷点</source>
        <translation>저온점</translation>
    </message>
    <message>
        <source> 像素</source>
        <translation> 픽셀</translation>
    </message>
    <message>
        <source>区域:</source>
        <translation>영역:</translation>
    </message>
    <message>
        <source>显示:</source>
        <translation>표시:</translation>
    </message>
    <message>
        <source>每种个数:</source>
        <translation>종류별 개수:</translation>
    </message>
    <message>
        <source>最小间距:</source>
        <translation>최소 거리:</translation>
    </message>
    <message>
        <source>放置为点</source>
        <translation>점으로 배치</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>저장...</translation>
    </message>
    <message>
        <source>复制表格</source>
        <translation>표 복사</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>순위</translation>
    </message>
    <message>
        <source>温度 (%1)</source>
        <translation>온도 (%1)</translation>
    </message>
    <message>
        <source>工具过多：%1（最多 %2）</source>
        <translation>도구가 너무 많습니다: %1(최대 %2)</translation>
    </message>
    <message>
        <source>保存热点和冷点</source>
        <translation>고온점과 저온점 저장</translation>
    </message>
</context>
<context>
    <name>analysis::ToolCommands</name>
    <message>
        <source>删除所选工具</source>
        <translation>선택한 도구 삭제</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>上一张照片</source>
        <translation>이전 사진</translation>
    </message>
    <message>
        <source>下一张照片</source>
        <translation>다음 사진</translation>
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
        <translation>이미지</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>사진 촬영</translation>
    </message>
    <message>
        <source>报警设置</source>
        <translation>경보 설정</translation>
    </message>
    <message>
        <source>启用报警</source>
        <translation>경보 사용</translation>
    </message>
    <message>
        <source>声音报警</source>
        <translation>경보음</translation>
    </message>
    <message>
        <source>产生报警文件</source>
        <translation>경보 파일 생성</translation>
    </message>
    <message>
        <source>报警信息</source>
        <translation>경보 정보</translation>
    </message>
    <message>
        <source>最大温度</source>
        <translation>최고 온도</translation>
    </message>
    <message>
        <source>报警阈值</source>
        <translation>경보 임계값</translation>
    </message>
    <message>
        <source>发射率</source>
        <translation>방사율</translation>
    </message>
    <message>
        <source>停止当前报警</source>
        <translation>현재 경보 중지</translation>
    </message>
    <message>
        <source>报警历史</source>
        <translation>경보 기록</translation>
    </message>
    <message>
        <source>报警历史</source>
        <comment>tab title</comment>
        <translation>경보 기록</translation>
    </message>
    <message>
        <source>保存的文件</source>
        <translation>파일 저장</translation>
    </message>
    <message>
        <source>实时图像</source>
        <translation>실시간 이미지</translation>
    </message>
    <message>
        <source>报警图像</source>
        <translation>경보 이미지</translation>
    </message>
    <message>
        <source>记录的图像</source>
        <translation>기록의 이미지</translation>
    </message>
</context>
<context>
    <name>dialogs</name>
    <message>
        <source>警告</source>
        <translation>경고</translation>
    </message>
</context>
<context>
    <name>photo_window</name>
    <message>
        <source>移动磁盘</source>
        <translation>이동식 디스크</translation>
    </message>
    <message>
        <source>重新加载</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>列表视图</source>
        <translation>표 보기</translation>
    </message>
    <message>
        <source>缩略图视图</source>
        <translation>축소판 보기</translation>
    </message>
    <message>
        <source>图片信息</source>
        <translation>이미지 정보</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>检查到U盘中同时含有K4710和K4715的文件
请选择打开哪一项？</source>
        <translation>디스크에 K4710과 K4715의 파일이 모두 있습니다.
어느 것을 여시겠습니까?</translation>
    </message>
    <message>
        <source>编号</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>该图片解析失败，请确认型号是否正确!</source>
        <translation>이미지를 해석하지 못했습니다. 모델이 올바른지 확인하십시오!</translation>
    </message>
    <message>
        <source>照片</source>
        <translation>사진</translation>
    </message>
</context>
<context>
    <name>plots::PlotView</name>
    <message>
        <source>显示全部</source>
        <translation>전체 표시</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>저장...</translation>
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
        <translation>언어</translation>
    </message>
    <message>
        <source>报警历史路径</source>
        <translation>경보 기록 경로</translation>
    </message>
    <message>
        <source>选择一个目录</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>改动将在应用重启后生效!</source>
        <translation>변경 사항은 프로그램을 다시 시작한 후 적용됩니다!</translation>
    </message>
</context>
</TS>
