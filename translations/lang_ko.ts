<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>전원을 끄시겠습니까?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>로거가 실행 중입니다!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>저장: 데이터를 저장합니다.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>종료: 데이터를 삭제하고 종료합니다.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>재시작: 데이터를 삭제하고 로거를 다시 시작합니다.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>작업 &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; 이(가) 실행 중입니다.
종료하시겠습니까?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>전압/전류/주파수</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>새그/스웰</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>전력/전력량</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>불평형</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>과도현상</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>돌입전류</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>로거</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>모니터</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>오실로스코프</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>전원 신호</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>인버터</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>교정</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>교정</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>영점:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>전압:</translation>
    </message>
    <message>
        <source>120V</source>
        <translation>120V</translation>
    </message>
    <message>
        <source>220V</source>
        <translation>220V</translation>
    </message>
    <message>
        <source>400V</source>
        <translation>400V</translation>
    </message>
    <message>
        <source>600V</source>
        <translation>600V</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>전류:</translation>
    </message>
    <message>
        <source>1mV/A</source>
        <translation>1mV/A</translation>
    </message>
    <message>
        <source>10mV/A</source>
        <translation>10mV/A</translation>
    </message>
    <message>
        <source>65mV/kA</source>
        <translation>65mV/kA</translation>
    </message>
    <message>
        <source>Zero calibrating ...</source>
        <translation>영점 교정 중 ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>전압 120V 교정 중 ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>전압 220V 교정 중 ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>전압 400V 교정 중 ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>전압 600V 교정 중 ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>전류 1mV/1A 교정 중 ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>전류 10mV/1A 교정 중 ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>전류 65mV/kA 교정 중 ...</translation>
    </message>
    <message>
        <source>L1  L2  L3  N</source>
        <translation>L1  L2  L3  N</translation>
    </message>
    <message>
        <source>L1</source>
        <translation>L1</translation>
    </message>
    <message>
        <source>L2</source>
        <translation>L2</translation>
    </message>
    <message>
        <source>L3</source>
        <translation>L3</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>완료!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>교정이 실행 중입니다. 
종료하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>클램프 편집</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>이름 :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>비율 :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>전류 범위 :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>플렉시블 :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>클램프 이름</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>비율 (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>전류 범위 (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>이름이 비어 있습니다!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>잘못된 이름입니다!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>한계값</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>허용%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>이벤트 :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>레벨</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>지속시간</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>파일 복사 중</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>취소됨</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>상위 폴더</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>파일 없음</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>추이</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>Pst</source>
        <translation>Pst</translation>
    </message>
    <message>
        <source>Plt</source>
        <translation>Plt</translation>
    </message>
    <message>
        <source>pinst</source>
        <translation>pinst</translation>
    </message>
</context>
<context>
    <name>FlickerPage</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>pinst</source>
        <translation>pinst</translation>
    </message>
</context>
<context>
    <name>HarmMain</name>
    <message>
        <source>Meter</source>
        <translation>측정값</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>Uthd</source>
        <translation>Uthd</translation>
    </message>
    <message>
        <source>Ithd</source>
        <translation>Ithd</translation>
    </message>
    <message>
        <source>Udc</source>
        <translation>Udc</translation>
    </message>
    <message>
        <source>Idc</source>
        <translation>Idc</translation>
    </message>
    <message>
        <source>Uharm %1</source>
        <translation>Uharm %1</translation>
    </message>
    <message>
        <source>Iharm %1</source>
        <translation>Iharm %1</translation>
    </message>
    <message>
        <source>Uinharm %1</source>
        <translation>Uinharm %1</translation>
    </message>
    <message>
        <source>Iinharm %1</source>
        <translation>Iinharm %1</translation>
    </message>
</context>
<context>
    <name>InrushMain</name>
    <message>
        <source>Inrush</source>
        <translation>돌입전류</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>정격전류</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>히스테리시스</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>지속시간</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>스위치</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
</context>
<context>
    <name>InstrumentInfo</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>기록 %1이(가) %2에 중단되었습니다</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>기록 %1(예정 %2)은(는)
전원이 끊겨 취소되었습니다.</translation>
    </message>
</context>
<context>
    <name>LimitDraft</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>고조파: 한계 내 시간</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>고조파: 이 시간의 한계값</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>고조파: 전체 시간 한계값</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>열</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: 값</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>한계 내 시간</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>상한</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>상한, 항상</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>하한</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>하한, 항상</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>히스테리시스</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>허용 횟수</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>전압</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>새그</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>스웰</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>정전</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>안정 시간</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>최소 변화폭</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>최소 변화율</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>불평형</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>전원 신호</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>주파수 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>주파수 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, 시간</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, 한계값</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, 항상</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, 시간</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, 한계값</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, 항상</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>역상, 시간</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>역상, 한계값</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>역상, 항상</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>영상, 시간</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>영상, 한계값</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>영상, 항상</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>시간 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>한계값 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>항상 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>시간 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>한계값 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>항상 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>램프</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>램프</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>실행</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>매개변수</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>로거</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>주파수=</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>추이</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>신호1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>신호1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>신호2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>신호2(%1)</translation>
    </message>
    <message>
        <source>Urms½(%1)</source>
        <translation>Urms½(%1)</translation>
    </message>
    <message>
        <source>Irms½(%1)</source>
        <translation>Irms½(%1)</translation>
    </message>
</context>
<context>
    <name>MainsSignalingTrend</name>
    <message>
        <source>Sig 1(%)</source>
        <translation>신호1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>신호2(%)</translation>
    </message>
    <message>
        <source>Urms½(%1)</source>
        <translation>Urms½(%1)</translation>
    </message>
    <message>
        <source>Irms½(%1)</source>
        <translation>Irms½(%1)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>포맷</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>USB로</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>전체 선택</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>선택 해제</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>사용:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>여유:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>실행 중인 측정에서 사용 중인 파일입니다.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>기록이 진행 중입니다.
먼저 종료하십시오.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>저장 장치를 포맷합니다. 
계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>삭제 중...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>오류!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>파일을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>오류! 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>USB 메모리를 꽂으십시오...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>파일을 복사하시겠습니까?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>파일이 이미 있습니다.
바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>이동식 저장 장치의 공간이 부족합니다.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>F1-F5를 누르면 자세한 정보가 표시됩니다</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>전압/전류/주파수
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>새그/스웰
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>고조파
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>전력/전력량
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>플리커
</translation>
    </message>
    <message>
        <source>Unbalance
</source>
        <translation>불평형
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>과도현상
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>사용자
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>돌입전류
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>파형
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>전원
신호</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>로거
</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>저장 후 재시작</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>버리고 재시작</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>저장 후 종료</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>버리고 종료</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>재시작</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>모두 예</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>모두 아니요</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>MonitStartPage</name>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harm.</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>불평</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>신호</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>불평형, Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>한계 이내</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>한계 초과</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>추이</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>불평형, Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>기간</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 일</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 시간</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>한계값</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>파일 이름:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>허용%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>한계값</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>최대</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>새그</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>스웰</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>정전</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>불평형</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>역상</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>전원 신호</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>불평형(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>주파수(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>상 색상</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>접지</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>주파수=</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>추이</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U 입력</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I 입력</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P 입력</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U 출력</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I 출력</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P 출력</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>효율</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>인버터</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>단상</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>3상</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U 입력</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U 출력</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I 입력</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I 출력</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>효율 %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P 출력</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>추이</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>P(%1)</source>
        <translation>P(%1)</translation>
    </message>
    <message>
        <source>S(%1)</source>
        <translation>S(%1)</translation>
    </message>
    <message>
        <source>Q1(%1)</source>
        <translation>Q1(%1)</translation>
    </message>
    <message>
        <source>PF</source>
        <translation>PF</translation>
    </message>
    <message>
        <source>cosΦ</source>
        <translation>cosΦ</translation>
    </message>
    <message>
        <source>tanΦ</source>
        <translation>tanΦ</translation>
    </message>
    <message>
        <source>Urms(%1)</source>
        <translation>Urms(%1)</translation>
    </message>
    <message>
        <source>Irms(%1)</source>
        <translation>Irms(%1)</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>리셋</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>합계</translation>
    </message>
    <message>
        <source>E(%1)</source>
        <translation>E(%1)</translation>
    </message>
</context>
<context>
    <name>PowerTrendPage</name>
    <message>
        <source>P(%1)</source>
        <translation>P(%1)</translation>
    </message>
    <message>
        <source>S(%1)</source>
        <translation>S(%1)</translation>
    </message>
    <message>
        <source>Q1(%1)</source>
        <translation>Q1(%1)</translation>
    </message>
    <message>
        <source>PF</source>
        <translation>PF</translation>
    </message>
    <message>
        <source>cosΦ</source>
        <translation>cosΦ</translation>
    </message>
    <message>
        <source>tanΦ</source>
        <translation>tanΦ</translation>
    </message>
    <message>
        <source>U rms(%1)</source>
        <translation>U rms(%1)</translation>
    </message>
    <message>
        <source>I rms(%1)</source>
        <translation>I rms(%1)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>사용자</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>측정값</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>전력</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U 고조파</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I 고조파</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U 차수간</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I 차수간</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>신호 전압</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>매개변수</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>P S Q PF cosφ tanφ</source>
        <translation>P S Q PF cosφ tanφ</translation>
    </message>
    <message>
        <source>E(Wh) E(VAh) E(varh)</source>
        <translation>E(Wh) E(VAh) E(varh)</translation>
    </message>
    <message>
        <source>Pst Plt</source>
        <translation>Pst Plt</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>불평형</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms 위상각) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms 위상각) 51-100</translation>
    </message>
    <message>
        <source>(rms) 0-49</source>
        <translation>(rms) 0-49</translation>
    </message>
    <message>
        <source>(rms) 50-51</source>
        <translation>(rms) 50-51</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>전원 신호</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>로거</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>읽는 중...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>반전</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>기간:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>간격:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>사용 가능 메모리:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>매개변수</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>기록할 공간이 없습니다.
메모리에서 파일을 삭제하십시오.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>기록을 시작하려면 50 MB의 여유가 필요합니다.
메모리에서 파일을 삭제하십시오.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>기간:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>간격:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>사용 가능 메모리:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>로거가 시작을 기다리고 있습니다.
실시간 값과 상세 내용은 다른 페이지에서 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>로거가 실행 중입니다.
실시간 값과 상세 내용은 다른 페이지에서 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>로거가 종료되었습니다.
데이터는 메모리에 있습니다.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>로거</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>저장: 데이터를 저장합니다.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>종료: 데이터를 삭제하고 종료합니다.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>재시작: 데이터를 삭제하고 로거를 다시 시작합니다.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>저장 장치가 더 이상 데이터를 받지 않습니다.
메모리에서 파일을 삭제하십시오.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1일, %2시간</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1시간</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Half-cycle values of the currents</source>
        <translation>전류의 반주기 값</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>전압의 반주기 값</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>전류 파형</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>전압 파형</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>전압 고조파와 한계값</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>전압 강하·상승·정전의 잔류 전압과 지속 시간</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>정전</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>전압 상승</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>전압 강하</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>트렌드</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>각 시점의 최저값과 최고값. 점선은 한계값.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>시간 비율 내 도달값, 기본파 대비 퍼센트</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>차수</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>한계값</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>기록된 이벤트가 없습니다.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>상</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>기간</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>공칭 대비</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>진행 중</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>기록 시작 전에 종료됨: 진행 중인 측정에서 발견되었으며 판정에 포함되지 않습니다.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>목록에 없는 이벤트: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>최악의 순간</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>과도</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>계측기와 설정</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>소프트웨어</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>펌웨어</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>결선</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>공칭 전압</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>공칭 주파수</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>클램프</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>변성비</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>한계값 세트</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>한계값은 이 보고서에 선택한 세트의 값입니다. 기록에는 계측기에서 사용된 세트가 표시되지 않습니다.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>누락 및 미판정</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>%1: 판정할 수 없음(%2).</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, 값이 없는 구간: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>불완전한 10분 구간: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>없음.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>모든 시각은 UTC입니다.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>전원 신호 %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>전압</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>불평형</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>영상 불평형</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>고조파 %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>급격한 전압 변동</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>돌입전류</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>합격</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>불합격</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>미판정</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>한계 없음</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>구간이 10분보다 김</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>구간이 3초보다 김</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>기록되지 않음</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>모니터</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>파형 캡처</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>저장된 페이지</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>로거</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>전력 품질 보고서</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>전원이 %1에 적합하지 않습니다.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>전원이 %1에 적합합니다.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>전압이 없어 판정할 수 없습니다.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>기록에 판정할 수 있는 내용이 없습니다.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>완전</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>중간에 끊김</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>중간이 손상됨</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>What</source>
        <translation>내용</translation>
    </message>
    <message>
        <source>End</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>주당 %1</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>판정</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>항목</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>도달값</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>최악</translation>
    </message>
    <message>
        <source>When</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>범위 내</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>판정됨</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>계측기</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>기록이 1주보다 짧습니다. 한계값은 주 단위이므로 결과는 참고용입니다.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>개별 판정한 주: %1. 표는 가장 나쁜 주입니다.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>기록이 완전하지 않습니다. 읽을 수 있는 부분만 판정했습니다.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>도달값: 한계값이 요구하는 시간 비율에서의 값. 범위 내: 한계값을 지키는 비율. 판정됨: 값이 있는 기록의 비율.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>정전이 있는 10분 구간(판정 제외): %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>전압 강하 또는 상승이 있는 10분 구간(표시 후 동일하게 판정): %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>제외하면 결과가 달라집니다.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>제외해도 결과는 같습니다.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>표준은 1년의 99.5 % 동안의 주파수를 요구하며, 한계값 세트는 주 단위로 판정합니다.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>계측기, 전압과 주파수: V 또는 Hz 편차의 100배를 퍼센트 한계값과 비교하며 범위 안의 값이 하나면 충분하므로 결과가 다릅니다.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>계측기, 고조파: 비율과 관계없이 한계값 미만이 아닌 값이 하나라도 있으면 불합격이므로 결과가 다릅니다.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>계측기, 불평형과 플리커: 한계값 미만인 값이 하나면 충분하므로 결과가 다릅니다.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>공칭값을 알 수 없음</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>전압, 고조파, 불평형, 주파수, 플리커: 계측기가 자체 임계값으로 찾은 이벤트이며 판정의 근거가 아닙니다.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>판정한 범위에서 전원이 %1에 적합합니다.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>모든 구간이 불완전하거나 정전을 포함함</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>1주 미만(%2)의 참고 결과: 전원이 %1의 한계값을 벗어났습니다.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>1주 미만(%2)의 참고 결과: 판정한 범위에서 전원이 %1의 한계값 안에 있었습니다.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>1주 미만(%2)의 참고 결과: 전원이 %1의 한계값 안에 있었습니다.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1: 시간의 %2에 대해서만 판정됨.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>마지막 주는 %1뿐입니다.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>이벤트 :</translation>
    </message>
    <message>
        <source>I(%1)</source>
        <translation>I(%1)</translation>
    </message>
    <message>
        <source>U(%1)</source>
        <translation>U(%1)</translation>
    </message>
</context>
<context>
    <name>RunInfo</name>
    <message>
        <source>Restart</source>
        <translation>재시작</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>시스템 상태:

로거: %1
총 이벤트: %2
새그: %3;   스웰: %4;   정전: %5;   과도현상: %6;   돌입전류: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>정지됨</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>화면 </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>데이터 </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: 이름 편집</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>파일 &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; 이(가) 이미 있습니다.
덮어쓰시겠습니까?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>주파수=</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>클램프</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>CT 비 :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>VT 비 :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>채널 :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>상</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>중성선</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>클램프 :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>감도 :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>전류 범위 :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>플렉시블 :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>분자</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>분모</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>편집할 수 없는 클램프입니다!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>클램프를 삭제하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>이미 있는 클램프입니다!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>결선 설정</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>결선 설정</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>1페이지</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>2페이지</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>3페이지</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Plt 가중 곡선</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> 고조파</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> 플리커</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> 과도현상</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> 돌입전류</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> 전원 신호</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>돌입전류</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>지속시간</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>정격전류</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>히스테리시스</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>고조파</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>K-팩터 방식:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>K-팩터 변수 e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>K-팩터 변수 q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>내장</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>이름이 비어 있습니다!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>잘못된 이름입니다!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>이미 있습니다. 덮어쓰시겠습니까?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>덮어쓰기</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>새 한계값 이름</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>한계값 이름</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>한계값을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>한계값</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: 값</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>결선</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>공칭 전압</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>주파수</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>클램프</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>다음 페이지</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>측정</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>한계값</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>이전 페이지</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>측정</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>전원 신호</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>신호 주파수 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>검출 임계값 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>신호 주파수 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>검출 임계값 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>결선:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>공칭 전압:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>주파수:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>한계값:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>상</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>중성선</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>클램프</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>CT 비</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>VT 비</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>전류 범위</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>과도현상</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>공칭 전압</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>상전압</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>선간전압</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>사용자: 위/아래 키로 값 변경</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>사용자: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>커서</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>차수간 고조파</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>전력량</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>상</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>선간</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>선택됨</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>즉시</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>예약</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>년</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>월</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>일</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>시</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>분</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>저장 안 됨:
저장 공간 부족</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>과도현상</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임계값</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>트리거:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>주파수=</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>U1fund(%1):</source>
        <translation>U1fund(%1):</translation>
    </message>
    <message>
        <source>U2fund(%1):</source>
        <translation>U2fund(%1):</translation>
    </message>
    <message>
        <source>U3fund(%1):</source>
        <translation>U3fund(%1):</translation>
    </message>
    <message>
        <source>I1fund(%1):</source>
        <translation>I1fund(%1):</translation>
    </message>
    <message>
        <source>I2fund(%1):</source>
        <translation>I2fund(%1):</translation>
    </message>
    <message>
        <source>I3fund(%1):</source>
        <translation>I3fund(%1):</translation>
    </message>
    <message>
        <source>Ф1(°):</source>
        <translation>Ф1(°):</translation>
    </message>
    <message>
        <source>Ф2(°):</source>
        <translation>Ф2(°):</translation>
    </message>
    <message>
        <source>Ф3(°):</source>
        <translation>Ф3(°):</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>역상</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>영상</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>주파수=</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>벡터</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>Urms(%1)</source>
        <translation>Urms(%1)</translation>
    </message>
    <message>
        <source>Irms(%1)</source>
        <translation>Irms(%1)</translation>
    </message>
    <message>
        <source>Ufund(%1)</source>
        <translation>Ufund(%1)</translation>
    </message>
    <message>
        <source>Ifund(%1)</source>
        <translation>Ifund(%1)</translation>
    </message>
    <message>
        <source>ФI-U(°):</source>
        <translation>ФI-U(°):</translation>
    </message>
    <message>
        <source>Uneg</source>
        <translation>Uneg</translation>
    </message>
    <message>
        <source>Uzero</source>
        <translation>Uzero</translation>
    </message>
    <message>
        <source>Ineg</source>
        <translation>Ineg</translation>
    </message>
    <message>
        <source>Izero</source>
        <translation>Izero</translation>
    </message>
</context>
<context>
    <name>UniTask</name>
    <message>
        <source>Power Quality</source>
        <translation>전력 품질</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>날짜 및 시각</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>시간대:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>주소:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>넷마스크:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>게이트웨이:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>LAN 설정</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>DHCP 사용</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>고정</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>IP 설정</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>사용 중인 IP:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>소프트웨어</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>펌웨어</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>업데이트 중입니다. 조작하지 마십시오!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>USB 메모리를 꽂으십시오...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>파일을 찾을 수 없습니다...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>소프트웨어 업데이트 완료...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>소프트웨어 업데이트 오류...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>알 수 없는 오류...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>펌웨어 체크섬 정상.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>펌웨어 업데이트 실패.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>펌웨어 업데이트 완료...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>오류 코드: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>시간 초과</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 시간 초과</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>WLAN</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>주소:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>넷마스크:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>게이트웨이:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>검색 중</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>끄기</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>보안</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>네트워크 없음</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>날짜 및 시각</translation>
    </message>
    <message>
        <source>LAN</source>
        <translation>LAN</translation>
    </message>
    <message>
        <source>WLAN</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>절전 시간</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>백라이트</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>상 색상</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>끔</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>주파수=</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>추이</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>홀드</translation>
    </message>
    <message>
        <source>Urms(%1)</source>
        <translation>Urms(%1)</translation>
    </message>
    <message>
        <source>Upk(%1)</source>
        <translation>Upk(%1)</translation>
    </message>
    <message>
        <source>CF</source>
        <translation>CF</translation>
    </message>
    <message>
        <source>Irms(%1)</source>
        <translation>Irms(%1)</translation>
    </message>
    <message>
        <source>Ipk(%1)</source>
        <translation>Ipk(%1)</translation>
    </message>
</context>
<context>
    <name>VifTrendPage</name>
    <message>
        <source>U rms(%1)</source>
        <translation>U rms(%1)</translation>
    </message>
    <message>
        <source>U pk(%1)</source>
        <translation>U pk(%1)</translation>
    </message>
    <message>
        <source>U dc(V)</source>
        <translation>U dc(V)</translation>
    </message>
    <message>
        <source>U cf</source>
        <translation>U cf</translation>
    </message>
    <message>
        <source>I rms(%1)</source>
        <translation>I rms(%1)</translation>
    </message>
    <message>
        <source>I pk(%1)</source>
        <translation>I pk(%1)</translation>
    </message>
    <message>
        <source>I dc(A)</source>
        <translation>I dc(A)</translation>
    </message>
    <message>
        <source>I cf</source>
        <translation>I cf</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>주파수(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>공백</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>잘못된 입력입니다!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>샘플링:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>기간:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>남은 시간:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>캡처가 시작을 기다리고 있습니다.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>캡처 중입니다.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>캡처가 종료되었습니다.
데이터는 메모리에 있습니다.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>더 이상 저장할 수 없습니다.
캡처된 데이터는 메모리에 있습니다.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>데이터를 얻기 전에
캡처가 종료되었습니다.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>현재 기록을
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> 중지하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>기간:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>샘플링:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>파일 이름:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>사용 가능 메모리:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>캡처할 공간이 없습니다.
메모리에서 파일을 삭제하십시오.</translation>
    </message>
</context>
<context>
    <name>flicker</name>
    <message>
        <source>pinst</source>
        <translation>pinst</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>플리커</translation>
    </message>
</context>
<context>
    <name>wlanSettingDialog</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>비밀번호:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(저장됨)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>잘못된 입력입니다!</translation>
    </message>
</context>
</TS>
