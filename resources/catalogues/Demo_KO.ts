<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="zh_CN">
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
