<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>关闭仪器电源？</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>记录仪正在运行！
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>保存：保存数据。
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>退出：删除数据并退出。
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>重启：删除数据并重新启动记录仪。</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>任务 &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; 正在运行。
是否退出？</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>电压/电流/频率</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>暂降与暂升</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>功率与电能</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>瞬态</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>浪涌电流</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>记录仪</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>监测</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>示波器</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>存储器</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>电网信号</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>逆变器</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>校准</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>校准</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>零点：</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>电压：</translation>
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
        <translation>电流：</translation>
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
        <translation>正在校准零点 ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>正在校准电压 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>正在校准电压 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>正在校准电压 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>正在校准电压 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>正在校准电流 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>正在校准电流 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>正在校准电流 65mV/kA ...</translation>
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
        <translation>切换</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>完成！</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>校准任务正在运行， 
是否退出？</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>电流钳编辑</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>变比：</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>电流量程：</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>柔性：</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>电流钳名称</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>变比 (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>电流量程 (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>名称为空！</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>名称无效！</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>允许%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>事件：</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>幅值</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>持续时间</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>正在复制文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>已取消</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>上一级</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>无文件</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>返回</translation>
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
        <translation>数值</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>浪涌电流</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>额定电流</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>迟滞</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>InstrumentInfo</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>记录 %1 于 %2 中断</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>记录 %1（计划于 %2）
因断电而取消。</translation>
    </message>
</context>
<context>
    <name>LimitDraft</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>谐波：合格时间</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>谐波：该时间内的限值</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>谐波：全部时间的限值</translation>
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
        <translation>Enter：数值</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>合格时间</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>上限，始终</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>下限，始终</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>迟滞</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>允许次数</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>暂降</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>暂升</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>稳定时间</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>最小阶跃</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>最小变化率</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>电网信号</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>频率 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>频率 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt，时间</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt，限值</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt，始终</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst，时间</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst，限值</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst，始终</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>负序，时间</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>负序，限值</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>负序，始终</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>零序，时间</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>零序，限值</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>零序，始终</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>时间 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>限值 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>始终 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>时间 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>限值 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>始终 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>灯</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>灯</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>参数</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>记录仪</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>频率 =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>类型</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>格式化</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>到 USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>View</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>已用：</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>可用：</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>文件正被当前测量使用。</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>正在记录。
请先结束记录。</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>将格式化存储器， 
是否继续？</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>正在删除...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>错误！！！</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>删除文件？</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>错误！请重试。</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>请插入 U 盘...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>复制文件？</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>文件已存在，
是否替换？</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>可移动存储设备空间不足。</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>按 F1-F5 显示更多信息</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>电压/电流/频率
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>暂降与暂升
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>谐波
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>功率与电能
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>闪变
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
        <translation>瞬态
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>用户
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>浪涌电流
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
        <translation>电网
信号</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>记录仪
</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>保存并重启</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>放弃并重启</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>保存并退出</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>放弃并退出</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>全部是</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>全部否</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
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
        <translation>谐波</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>失衡</translation>
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
        <translation>等待中</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已结束</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>在限值内</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>超出限值</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
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
        <translation>设置</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 天</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 时</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>文件名：</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>允许%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限值</translation>
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
        <translation>谐波</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最差</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>暂降</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>暂升</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>负序</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>电网信号</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
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
        <translation>频率(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>相色</translation>
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
        <translation>频率 =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U 输入</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I 输入</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P 输入</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U 输出</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I 输出</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P 输出</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>效率</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>逆变器</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>单相</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>三相</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U 输入</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U 输出</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I 输入</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I 输出</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>效率 %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P 输出</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>复位</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
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
        <translation>类型</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>自定义</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>电能质量</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U 谐波</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I 谐波</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U 间谐波</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I 间谐波</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>信号电压</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>频率</translation>
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
        <translation>(rms 相角) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms 相角) 51-100</translation>
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
        <translation>电网信号</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>记录仪</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>正在读取...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反选</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>持续时间：</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>间隔：</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>可用存储：</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>没有记录所需的空间。
请在存储器中删除文件。</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>开始记录需要 50 MB 可用空间。
请在存储器中删除文件。</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>持续时间：</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>间隔：</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>可用存储：</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>记录仪等待开始。
切换到其他页面查看实时数据和详情。</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>记录仪正在运行。
切换到其他页面查看实时数据和详情。</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>记录已结束。
数据保存在存储器中。</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>记录仪</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>保存：保存数据。
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>退出：删除数据并退出。
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>重启：删除数据并重新启动记录仪。</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>存储器不再接收数据。
请在存储器中删除文件。</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 天, %2 时</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 小时</translation>
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
        <translation>电流半周波值</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>电压半周波值</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>电流波形</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>电压波形</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>电压谐波及其限值</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>暂降、暂升和中断的残余电压与持续时间</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>暂升</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>暂降</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>各时刻的最低值和最高值；限值为虚线。</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>规定时间占比内达到的值，占基波百分比</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>次数</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>没有记录到事件。</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>相</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>占标称值</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>持续中</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>在记录开始前已结束：由正在进行的测量发现，不计入结论。</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>其余未列出的事件：%1。</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>最差时刻</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>瞬变</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>仪器与设置</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>接线</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>标称电压</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>标称频率</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>电流钳</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>变比</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>限值组</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>限值取自为本报告选择的限值组。记录中不含仪器当时使用的限值组。</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>缺失和未评定</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>无法评定 %1：%2。</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1，无数值的时段：%2。</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>不完整的十分钟时段：%1。</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>无。</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>所有时间均为 UTC。</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>电网信号 %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>不平衡</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>零序不平衡</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>%1 次谐波</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>快速电压变化</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>浪涌电流</translation>
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
        <translation>未评定</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>无限值</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>时段长于十分钟</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>时段长于三秒</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>未记录</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>监测</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>波形采集</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>已存页面</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>记录仪</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>电能质量报告</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>供电不符合 %1。</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>供电符合 %1。</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>没有电压：无法评定。</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>记录中没有可评定的内容。</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>完整</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>被截断</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>中部损坏</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>不可读</translation>
    </message>
    <message>
        <source>What</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>每周 %1</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>评定</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>参量</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>达到值</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最差</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>限内</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>已评定</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>记录不足一周。限值按周规定：结果仅供参考。</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>分别评定的周数：%1。表中为最差的一周。</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>记录不完整。仅评定了可读取的部分。</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>达到值：在限值所要求的时间占比内数值所达到的程度。限内：符合限值的占比。已评定：有数值的记录占比。</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>含中断的十分钟时段，未评定：%1。</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>含暂降或暂升的十分钟时段，已标记并与其他时段同样评定：%1。</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>剔除后结果会不同。</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>剔除后结果不变。</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>标准要求频率在一年的 99.5 % 内合格；限值组按周评定。</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>仪器，电压和频率：将偏差（V 或 Hz）的一百倍与百分比限值比较，且有一个值在限内即可，因此结果不同。</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>仪器，谐波：只要有一个值不低于限值即判不合格，与占比无关，因此结果不同。</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>仪器，不平衡和闪变：有一个值低于限值即可，因此结果不同。</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>标称值未知</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>电压、谐波、不平衡、频率和闪变：仪器按自身阈值得出的事件，评定不以此为依据。</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>在已评定的范围内，供电符合 %1。</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>其每个时段都不完整或含有中断</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>不足一周（%2），仅供参考：供电超出了 %1 的限值。</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>不足一周（%2），仅供参考：在已评定的范围内，供电未超出 %1 的限值。</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>不足一周（%2），仅供参考：供电未超出 %1 的限值。</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 仅在 %2 的时间内得到评定。</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>最后一周仅有 %1。</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>事件：</translation>
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
        <translation>重启</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>系统状态：

记录仪：%1
事件总数：%2
暂降：%3；   暂升：%4；   中断：%5；   瞬态：%6；   浪涌电流：%7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>已停止</translation>
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
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>屏幕 </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>数据 </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter：编辑名称</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>文件 &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; 已存在。
是否覆盖？</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>频率 =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>电流钳</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>电流变比：</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>电压变比：</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>通道：</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>相线</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>中性线</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>电流钳：</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>灵敏度：</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>电流量程：</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>柔性：</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
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
        <translation>此电流钳不可编辑！</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>删除该电流钳？</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>电流钳已存在！</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>接线方式</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>接线方式</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>第 1 页</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>第 2 页</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>第 3 页</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>闪变</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Plt 加权曲线</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> 谐波</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> 闪变</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> 瞬态</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> 浪涌电流</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> 电网信号</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>浪涌电流</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>额定电流</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>迟滞</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>谐波</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>K 因子方法：</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>K 因子参数 e：</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>K 因子参数 q：</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>名称为空！</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>名称无效！</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>已存在，是否覆盖？</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>新限值组名称</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>限值组名称</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>删除该限值组？</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter：数值</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>接线</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>标称电压</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>电流钳</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>测量</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>测量</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>电网信号</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>信号频率 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>检测阈值 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>信号频率 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>检测阈值 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>接线：</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>标称电压：</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>频率：</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>限值：</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>相线</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>中性线</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>电流钳</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>电流变比</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>电压变比</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>电流量程</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>瞬态</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>标称电压</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>相电压</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>线电压</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>自定义：用上下键改变数值</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>自定义：%1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>光标</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>间谐波</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>电能</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>相</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>线</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>定时</translation>
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
        <translation>时</translation>
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
        <translation>未在存储：
存储器已满</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>瞬态</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>触发：</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>频率 =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>负序</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>零序</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>频率 =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>矢量</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>电能质量</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>时区：</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>子网掩码：</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>网关：</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>局域网设置</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>使用 DHCP</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>静态</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>IP 设置</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>当前 IP：</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>正在更新。请勿操作！！！</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>请插入 U 盘...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>未找到文件...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>软件更新完成...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>软件更新错误...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>未知错误...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>固件数据校验正确。</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>固件更新失败。</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>固件更新完成...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>错误代码： </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 超时</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
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
        <translation>状态：</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>子网掩码：</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>网关：</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>正在扫描</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>没有网络</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期和时间</translation>
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
        <translation>语言</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>休眠时间</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>相色</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>频率 =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>趋势</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
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
        <translation>频率(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>输入无效！</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>采样率：</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>持续时间：</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>剩余时间：</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>采集等待开始。</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>正在采集。</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>采集已结束。
数据保存在存储器中。</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>存储器无法继续写入。
已采集的数据保存在存储器中。</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>采集在获得数据前
已结束。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>是否停止
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> 当前记录？</translation>
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
        <translation>下一个</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>持续时间：</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>采样率：</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>可用存储：</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>没有采集所需的空间。
请在存储器中删除文件。</translation>
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
        <translation>闪变</translation>
    </message>
</context>
<context>
    <name>wlanSettingDialog</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>（已保存）</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>输入无效！</translation>
    </message>
</context>
</TS>
