<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>電源を切りますか？</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>ロガー動作中です！
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>保存: データを保存します。
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>終了: データを削除して終了します。
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>再開: データを削除してロガーを再開します。</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>タスク &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; は実行中です。
終了しますか？</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>電圧/電流/周波数</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>ディップ/スウェル</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>高調波</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>電力・電力量</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>トランジェント</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>突入電流</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>ロガー</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>モニタ</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>オシロスコープ</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>電源重畳信号</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>インバータ</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>校正</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>ゼロ:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>電圧:</translation>
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
        <translation>電流:</translation>
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
        <translation>ゼロ校正中 ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>電圧 120V 校正中 ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>電圧 220V 校正中 ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>電圧 400V 校正中 ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>電圧 600V 校正中 ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>電流 1mV/1A 校正中 ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>電流 10mV/1A 校正中 ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>電流 65mV/kA 校正中 ...</translation>
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
        <translation>切替</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>完了！</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>校正を実行中です。 
終了しますか？</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>クランプ編集</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>名前 :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>変換比 :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>電流レンジ :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>フレキシブル :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>クランプ名</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>変換比 (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>電流レンジ (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>名前が空です！</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>名前が無効です！</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>許容%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>イベント：</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>継続時間</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>ファイルをコピー中</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>中止しました</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>ファイルなし</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
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
        <translation>戻る</translation>
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
        <translation>数値</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>高調波</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
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
        <translation>突入電流</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>初期値</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>定格電流</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>ヒステリシス</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>継続時間</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>スイッチ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>InstrumentInfo</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型式</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>記録 %1 は %2 に中断されました</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>記録 %1（予定 %2）は
電源断のため取り消されました。</translation>
    </message>
</context>
<context>
    <name>LimitDraft</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>高調波: 限度内の時間</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>高調波: この時間の限度値</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>高調波: 全時間の限度値</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: 値</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>限度内の時間</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>上限、常時</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>下限、常時</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>ヒステリシス</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>許容回数</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電圧</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>高調波</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>ディップ</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>スウェル</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>瞬停</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>安定時間</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>最小変化幅</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>最小変化率</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>電源重畳信号</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>周波数 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>周波数 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt、時間</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt、限度値</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt、常時</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst、時間</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst、限度値</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst、常時</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>逆相、時間</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>逆相、限度値</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>逆相、常時</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>零相、時間</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>零相、限度値</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>零相、常時</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>時間 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>限度値 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>常時 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>時間 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>限度値 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>常時 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>ランプ</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>ランプ</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>パラメータ</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>ロガー</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>周波数=</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>信号1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>信号1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>信号2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>信号2(%1)</translation>
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
        <translation>信号1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>信号2(%)</translation>
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
        <translation>種類</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>初期化</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>USB へ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>全選択</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>選択解除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>使用:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>空き:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>ファイルは実行中の測定で使用中です。</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>記録中です。
先に終了してください。</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>ストレージを初期化します。 
続けますか？</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>削除中...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>エラー！！！</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>ファイルを削除しますか？</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>エラー！再試行してください。</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>USB メモリを挿入してください...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>ファイルをコピーしますか？</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>ファイルは既に存在します。
置き換えますか？</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>リムーバブルディスクの空き容量が不足しています。</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>F1-F5を押すと詳細を表示します</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>電圧/電流/周波数
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>ディップ/スウェル
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>高調波
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>電力・電力量
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>フリッカ
</translation>
    </message>
    <message>
        <source>Unbalance
</source>
        <translation>不平衡
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>トランジェント
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>ユーザー
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>突入電流
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>波形
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>電源
重畳信号</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>ロガー
</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>保存して再開</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>破棄して再開</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>保存して終了</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>破棄して終了</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>すべてはい</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>すべていいえ</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
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
        <translation>高調波</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>逆相</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>不平衡, Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>測定中</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>限度内</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>限度超過</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>全イベント</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>高調波</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>不平衡, Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>期間</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 日</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 時間</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>許容%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限度値</translation>
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
        <translation>高調波</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>ディップ</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>スウェル</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>停電</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>逆相</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>電源重畳信号</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>不平衡(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>周波数(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>初期値</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>相の色</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>接地</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>周波数=</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U 入力</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I 入力</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P 入力</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U 出力</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I 出力</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P 出力</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>効率</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>インバータ</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>単相</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>三相</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U 入力</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U 出力</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I 入力</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I 出力</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>効率 %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P 出力</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
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
        <translation>リセット</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
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
        <translation>種類</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>任意</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>測定値</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電力</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U 高調波</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I 高調波</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U 次数間</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I 次数間</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>信号電圧</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>パラメータ</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>周波数</translation>
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
        <translation>不平衡</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms 位相角) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms 位相角) 51-100</translation>
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
        <translation>電源重畳信号</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>ロガー</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>読み取り中...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>全て</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>継続時間:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>間隔:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>メモリ残量:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>パラメータ</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>記録する空き容量がありません。
メモリのファイルを削除してください。</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>記録の開始には空き容量 50 MB が必要です。
メモリのファイルを削除してください。</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>継続時間:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>間隔:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>メモリ残量:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>ロガーは開始を待っています。
リアルタイム値と詳細は他のページで確認できます。</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>ロガー動作中です。
リアルタイム値と詳細は他のページで確認できます。</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>ロガーは終了しました。
データはメモリにあります。</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>ロガー</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>保存: データを保存します。
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>終了: データを削除して終了します。
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>再開: データを削除してロガーを再開します。</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>これ以上データを記録できません。
メモリのファイルを削除してください。</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 日, %2 時間</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Half-cycle values of the currents</source>
        <translation>電流の半サイクル値</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>電圧の半サイクル値</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>電流波形</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>電圧波形</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>電圧高調波と限度値</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>ディップ・スウェル・停電の残留電圧と継続時間</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>瞬停</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>スウェル</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>ディップ</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>各時点の最低値と最高値。破線は限度値。</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>高調波</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>規定時間割合での到達値、基本波に対する%</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>次数</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>イベントの記録はありません。</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>相</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>公称比</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>継続中</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>記録の開始前に終了：実行中の測定が検出したもので、判定には数えません。</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>記載していないその他のイベント：%1。</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>最悪の瞬間</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>トランジェント</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>測定器と設定</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型式</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>結線</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>公称電圧</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>公称周波数</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>クランプ</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>変成比</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>限度値セット</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>限度値は本レポート用に選択したセットのものです。記録には測定器で使用されたセットは含まれません。</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>欠落と未判定</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>%1は判定できません：%2。</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1、値のない区間：%2。</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>不完全な10分区間：%1。</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>なし。</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>時刻はすべてUTCです。</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>商用信号 %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電圧</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>零相不平衡</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>第%1次高調波</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>急速電圧変動</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>突入電流</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>未判定</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>限度なし</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>区間が10分を超えています</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>区間が3秒を超えています</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>記録されていません</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>モニタ</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>波形記録</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>保存ページ</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>ロガー</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>電源品質レポート</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>電源は%1に適合していません。</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>電源は%1に適合しています。</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>電圧がないため、判定できません。</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>判定できるデータが記録にありません。</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>完全</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>途中で切断</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>途中が破損</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>What</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>週に %1</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>判定</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>到達値</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最悪</translation>
    </message>
    <message>
        <source>When</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>範囲内</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>判定済</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>測定器</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>記録は1週間未満です。限度値は週単位のため、結果は目安です。</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>個別に判定した週：%1。表は最悪の週です。</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>記録は完全ではありません。読み取れた部分を判定しました。</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>到達値：限度値が求める時間割合での値。範囲内：限度値を守る割合。判定済：値のある記録の割合。</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>停電を含む10分区間（判定対象外）：%1。</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>ディップまたはスウェルを含む10分区間（フラグ付き、他と同様に判定）：%1。</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>除くと結果が変わります。</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>除いても結果は同じです。</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>規格は周波数を1年の99.5 %で求めますが、限度値セットは週単位で判定します。</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>測定器、電圧と周波数：VまたはHzでの偏差の100倍をパーセントの限度値と比較し、範囲内の値が1つあれば合格となるため、結果が異なります。</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>測定器、高調波：割合に関係なく、限度値未満でない値が1つでもあれば不合格となるため、結果が異なります。</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>測定器、不平衡とフリッカ：限度値未満の値が1つあれば合格となるため、結果が異なります。</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>公称値が不明です</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>電圧・高調波・不平衡・周波数・フリッカ：測定器が独自のしきい値で検出したイベントです。判定には使用していません。</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>判定した範囲では、電源は%1に適合しています。</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>どの区間も不完全か、停電を含んでいます</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>1週間未満（%2）の目安：電源は%1の限度値を外れました。</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>1週間未満（%2）の目安：判定した範囲では、電源は%1の限度値内でした。</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>1週間未満（%2）の目安：電源は%1の限度値内でした。</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1は時間の%2についてのみ判定されました。</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>最後の週は%1のみです。</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>イベント：</translation>
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
        <translation>再開</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>システム状態:

ロガー: %1
イベント総数: %2
ディップ: %3;   スウェル: %4;   瞬停: %5;   トランジェント: %6;   突入電流: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>画面 </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>データ </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: 名前を編集</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>ファイル &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; は既に存在します。
上書きしますか？</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>周波数=</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>初期値</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>クランプ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>CT 比 :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>VT 比 :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>チャンネル :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>相</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>中性線</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>クランプ :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>感度 :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>電流レンジ :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>フレキシブル :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>分子</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>分母</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>編集できないクランプです！</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>クランプを削除しますか？</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>同名のクランプがあります！</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>結線設定</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>結線設定</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>1 ページ</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>2 ページ</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>3 ページ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>初期値</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>フリッカ</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Plt 重み付け曲線</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> 高調波</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> フリッカ</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> トランジェント</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> 突入電流</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> 電源重畳信号</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>突入電流</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>継続時間</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>定格電流</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>ヒステリシス</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>高調波</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>K ファクタ方式:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>K ファクタ e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>K ファクタ q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>内蔵</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>名前が空です！</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>名前が無効です！</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>既にあります。上書きしますか？</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>新しい限度値の名前</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>限度値の名前</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>限度値を削除しますか？</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: 値</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>結線</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>公称電圧</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>クランプ</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>次ページ</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>測定</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>限度値</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>前ページ</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>測定</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>電源重畳信号</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>信号周波数 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>検出しきい値 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>信号周波数 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>検出しきい値 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>結線:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>公称電圧:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>周波数:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>限度値:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>相</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>中性線</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>クランプ</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>CT 比</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>VT 比</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>電流レンジ</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>トランジェント</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>公称電圧</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>相電圧</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>線間電圧</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>任意: 上下キーで値を変更</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>任意: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>カーソル</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>全て</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>次数間高調波</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>電力量</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>相</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>線間</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全て</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>選択</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>予約</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>記録停止：
空き容量なし</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>初期値</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>トランジェント</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>初期値</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>トリガ:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>周波数=</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
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
        <translation>逆相</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>零相</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>周波数=</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>ベクトル</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
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
        <translation>電力品質</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>タイムゾーン:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>ネットマスク:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>ゲートウェイ:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>LAN 設定</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>DHCP を使用</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>IP 設定</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>使用中の IP:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>更新中です。操作しないでください！！！</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>USB メモリを挿入してください...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>ファイルが見つかりません...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>ソフトウェア更新が完了しました...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>ソフトウェア更新エラー...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>不明なエラー...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>ファームウェアのチェックサム OK。</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>ファームウェア更新に失敗しました。</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>ファームウェア更新が完了しました...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>エラーコード: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>タイムアウト</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 タイムアウト</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
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
        <translation>状態:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>ネットマスク:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>ゲートウェイ:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>スキャン中</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>保護あり</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>ネットワークなし</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日付と時刻</translation>
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
        <translation>更新</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>消灯時間</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>バックライト</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>相の色</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>周波数=</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>トレンド</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
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
        <translation>周波数(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>入力が無効です！</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>サンプリング:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>継続時間:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>残り時間:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>取り込みは開始を待っています。</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>取り込み中です。</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>取り込みは終了しました。
データはメモリにあります。</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>これ以上書き込めません。
取り込んだデータはメモリにあります。</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>データを得る前に
取り込みを終了しました。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>現在の記録を
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> 停止しますか？</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>継続時間:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>サンプリング:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>ファイル名:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>メモリ残量:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>取り込む空き容量がありません。
メモリのファイルを削除してください。</translation>
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
        <translation>フリッカ</translation>
    </message>
</context>
<context>
    <name>wlanSettingDialog</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>（保存済み）</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>入力が無効です！</translation>
    </message>
</context>
</TS>
