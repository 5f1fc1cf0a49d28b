<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Выключить прибор?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>Идёт регистрация!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Сохранить: сохранить данные.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Выход: удалить данные и выйти.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Заново: удалить данные и начать регистрацию заново.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>Задача &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; выполняется.
Завершить её?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Вольт/Ампер/Герц</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Провалы и выбросы</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Мощность/энергия</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Несимметрия</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Импульсы</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Пусковой ток</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Регистратор</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Монитор</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Осциллограф</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Форма сигнала</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Сигналы в сети</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Инвертор</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Калибровка</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Калибровка</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>Нуль:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>Напряжение:</translation>
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
        <translation>Ток:</translation>
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
        <translation>Калибровка нуля ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Калибровка напряжения 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Калибровка напряжения 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Калибровка напряжения 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Калибровка напряжения 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Калибровка тока 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Калибровка тока 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Калибровка тока 65mV/kA ...</translation>
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
        <translation>Далее</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>Готово!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>Идёт калибровка, 
выйти?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Параметры клещей</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Имя :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Коэф. :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Диапазон I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Гибкие :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Имя клещей</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Коэффициент (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>Диапазон I (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Имя не задано!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Недопустимое имя!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>Предел</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>Допустимо%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>События :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>ВРЕМЯ</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>ТИП</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>УРОВЕНЬ</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>ДЛИТЕЛЬН.</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Копирование файлов</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Отменено</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>ТИП</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ВРЕМЯ</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>ОПИСАНИЕ</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>нет файлов</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Тренд</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
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
        <translation>Назад</translation>
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
        <translation>Таблица</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
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
        <translation>Пусковой ток</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>По умолч.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Номин. ток</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Порог</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Гистерезис</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Включение</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл</translation>
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
        <translation>Отмена</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>Запись %1 прервана %2</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>Запись %1, назначенная на %2,
отменена из-за отключения питания.</translation>
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
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Гармоники: время в пределах</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Гармоники: предел для этого времени</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Гармоники: предел для всего времени</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Столбец</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: значения</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Время в пределах</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Верхний предел</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Верхний, всегда</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Нижний предел</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Нижний, всегда</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Порог</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Гистерезис</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Допустимое число</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Напряжение</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Провалы</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Выбросы</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Прерывания</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Время установления</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Минимальный скачок</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Минимальная скорость</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Несимметрия</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Сигналы в сети</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Частота 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Частота 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, время</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, предел</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, всегда</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, время</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, предел</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, всегда</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Обратная, время</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Обратная, предел</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Обратная, всегда</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Нулевая, время</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Нулевая, предел</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Нулевая, всегда</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Время 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Предел 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Всегда 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Время 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Предел 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Всегда 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Лампа</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>лампа</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Пуск</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Параметры</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Регистратор</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>Част. =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Тренд</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>Сиг 1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>Сиг 1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Сиг 2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>Сиг 2(%1)</translation>
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
        <translation>Сиг 1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Сиг 2(%)</translation>
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
        <translation>Вид</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>На USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Снять выбор</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Занято:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Свободно:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>Файл занят идущим измерением.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Идёт запись.
Сначала завершите её.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>Накопитель будет отформатирован, 
продолжить?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Удаление...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Ошибка!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Удалить файл?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Ошибка! Повторите.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Вставьте USB-диск...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Копировать файлы?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>Файл уже существует,
заменить?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Недостаточно места на съёмном носителе.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Нажмите F1-F5 для подробных сведений</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>Вольт/Ампер/Герц
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>Провалы и выбросы
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Гармоники
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Мощность/энергия
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>Фликер
</translation>
    </message>
    <message>
        <source>Unbalance
</source>
        <translation>Несимметрия
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Импульсы
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Пользователь
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Пусковой ток
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Форма сигнала
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Сигналы
в сети</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Регистратор
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
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Сохр. и заново</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Удал. и заново</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Сохр. и выйти</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Удал. и выйти</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Заново</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Да для всех</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Нет для всех</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
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
        <translation>Гарм.</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>Нес.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Гц</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>Сигн.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Несим., Гц</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Измерение</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Завершено</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>В пределах</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Предел превышен</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Тренд</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Несим., Гц</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>НАСТРОЙКА</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source> d</source>
        <translation> д</translation>
    </message>
    <message>
        <source> h</source>
        <translation> ч</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Пределы</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>Допустимо%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Предел</translation>
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
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Худшая</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Провалы</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Выбросы</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Прерыв.</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Несимметрия</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Обр.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Сигналы в сети</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Знач.</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Несимметрия(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Част(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>По умолч.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Цвета фаз</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Земля</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>Част. =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Тренд</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U вх</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I вх</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P вх</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U вых</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I вых</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P вых</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>КПД</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>Инвертор</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>1 фаза</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>3 фазы</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U вх</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U вых</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I вх</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I вых</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>КПД %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P вых</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Тренд</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
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
        <translation>Сброс</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Всего</translation>
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
        <translation>Вид</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>СВОЁ</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Значения</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Мощность</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U гармон.</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I гармон.</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U интергарм.</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I интергарм.</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>Сигнализ.</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Частота</translation>
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
        <translation>Несимметрия</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms угол) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms угол) 51-100</translation>
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
        <translation>Сигналы в сети</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Регистратор</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Чтение...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Обратить</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Длительность:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Интервал:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Свободная память:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>След.</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Для записи нет места.
Удалите файлы в памяти.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Для начала записи нужно 50 МБ.
Удалите файлы в памяти.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Длительность:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Интервал:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Свободная память:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>Регистратор ждёт начала.
Текущие данные смотрите на других страницах.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>Идёт регистрация.
Текущие данные смотрите на других страницах.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>Регистрация завершена.
Данные находятся в памяти.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Регистратор</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Сохранить: сохранить данные.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Выход: удалить данные и выйти.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Заново: удалить данные и начать регистрацию заново.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>Накопитель больше не принимает данные.
Удалите файлы в памяти.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 д, %2 ч</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Half-cycle values of the currents</source>
        <translation>Полупериодные значения токов</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Полупериодные значения напряжений</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Форма токов</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Форма напряжений</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Гармоники напряжения и их нормы</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Остаточное напряжение и длительность событий</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Прерывание</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Перенапряжение</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Провал</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Тренды</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Наименьшее и наибольшее значение в каждый момент; нормы показаны пунктиром.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Достигнуто за долю времени, процент основной гармоники</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Предел</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Событий не записано.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Событие</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Фаза</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Начало</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Знач.</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>От номинала</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>продолжается</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Закончилось до начала записи: найдено идущим измерением и в заключении не учтено.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Прочие события, не в списке: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Худшие моменты</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Переходный процесс</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Прибор и настройки</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Серийный номер</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ПО прибора</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ПО процессора</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Номинальное напряжение</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Номинальная частота</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Клещи</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Коэффициент</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Набор норм</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Нормы взяты из набора, выбранного для этого отчёта. Запись не сообщает, какой набор действовал на приборе.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Отсутствует и не оценено</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>Не удалось оценить: %1 (%2).</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, интервалов без значения: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Неполных 10-минутных интервалов: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Ничего.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Все времена указаны в UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Сигнал сети %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Напряжение</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Несимметрия</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Несимметрия, нулевая последовательность</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Гармоника %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Быстрое изменение напряжения</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Пусковой ток</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>да</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>не оценено</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>без нормы</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>интервалы длиннее десяти минут</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>интервалы длиннее трёх секунд</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>не записано</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Монитор</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Запись формы сигнала</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Сохранённая страница</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Регистратор</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Отчёт о качестве электроэнергии</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>Питание не соответствует %1.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>Питание соответствует %1.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Напряжения не было: оценивать нечего.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>В записи нет ничего, что можно оценить.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>полная</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>обрезана</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>повреждена в середине</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Конец</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>%1 за неделю</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Заключение</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Величина</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Достигнуто</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Худшее</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Когда</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>В норме</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Оценено</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Прибор</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>Запись короче недели. Нормы действуют для недель: результат ориентировочный.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Оценено недель, каждая отдельно: %1. В таблице худшая.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>Запись неполная. Оценено то, что удалось прочитать.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Достигнуто: до этого доходят значения за долю времени, которую требует норма. В норме: доля, которая её соблюдает. Оценено: доля записи, для которой есть значения.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>10-минутные интервалы с прерыванием, не оценены: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>10-минутные интервалы с провалом или перенапряжением, помечены и оценены как остальные: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Без них результат был бы другим.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Без них результат тот же.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>Стандарт требует частоту в 99,5 % года; набор норм оценивает недели.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Прибор, напряжение и частота: сравнивается стократное отклонение в В или Гц с нормой в процентах, и достаточно одного значения внутри. Отсюда другой результат.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Прибор, гармоники: одного значения не ниже нормы достаточно для отказа при любой доле. Отсюда другой результат.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Прибор, несимметрия и фликер: достаточно одного значения ниже нормы. Отсюда другой результат.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>номинальное значение неизвестно</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Напряжение, гармоники, несимметрия, частота и фликер: события, найденные прибором по его порогам. Заключение на них не основано.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>В оценённой части питание соответствует %1.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>каждый интервал неполный или содержит прерывание</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Ориентировочно, менее недели (%2): питание выходило за нормы %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Ориентировочно, менее недели (%2): в оценённой части питание не выходило за нормы %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Ориентировочно, менее недели (%2): питание не выходило за нормы %1.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1: оценено только %2 времени.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>Последняя из них длится только %1.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>События :</translation>
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
        <translation>Заново</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>Состояние системы:

Регистратор: %1
Всего событий: %2
Провалы: %3;   Выбросы: %4;   Прерывания: %5;   Импульсы: %6;   Пусковые токи: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>работает</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>остановлен</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Экран </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Данные </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: изменить имя</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>Файл &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; уже существует.
Перезаписать его?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>Част. =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолч.</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Клещи</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>Коэф. ТТ :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>Коэф. ТН :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Канал :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Фазы</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Нейтраль</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Клещи :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Чувствит. :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Диапазон I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Гибкие :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>числитель</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>знаменатель</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Эти клещи изменить нельзя!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Удалить клещи?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>Такие клещи уже есть!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>СХЕМА ПОДКЛЮЧЕНИЯ</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>СХЕМА ПОДКЛЮЧЕНИЯ</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Стр. 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Стр. 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Стр. 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>По умолч.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>Фликер</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Кривая взвешивания Plt</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Функции</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Гармоники</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Фликер</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Импульсы</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Пусковой ток</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Сигналы в сети</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Пусковой ток</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Номин. ток</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Порог</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Гистерезис</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Гармоники</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>Метод K-фактора:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>Парам. e K-фактора:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>Парам. q K-фактора:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>встроенный</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>в работе</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Имя не задано!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Недопустимое имя!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Уже существует. Заменить?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Имя нового набора пределов</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Имя набора пределов</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Удалить пределы?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Пределы</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: значения</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Uном</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Клещи</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>След. стр.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Измерение</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Пределы</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Функции</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Пред. стр.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Измерение</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Сигналы в сети</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Частота сигнала 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Порог обнаружения 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Частота сигнала 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Порог обнаружения 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Схема:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Uном:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Частота:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Пределы:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Фазы</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Нейтраль</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Клещи</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>Коэф. ТТ</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>Коэф. ТН</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>Диапазон I</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Импульсы</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Порог</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Номинальное напряжение</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Фазное напряжение</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Линейное напряжение</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Своё: значение меняется клавишами вверх и вниз</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Своё: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>Курсор</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Вкл</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ВСЕ</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>ИНТЕРГАРМ.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Энергия</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Фаза</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Выбор</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>Сразу</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>По времени</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Год</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месяц</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Часы</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Минуты</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Запись не идёт:
нет места</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>События</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>По умолч.</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Импульсы</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>По умолч.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Порог</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>ЗАПУСК:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Пред.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>След.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>Част. =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
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
        <translation>Обр.</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Нул.</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>Част. =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Векторы</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
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
        <translation>Качество электроэнергии</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Часовой пояс:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Маска:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Шлюз:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>НАСТРОЙКА LAN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>Использовать DHCP</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Статический</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>Настройка IP</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>Текущий IP:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Выполнить</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ПО прибора</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ПО процессора</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>Идёт обновление. Не трогайте прибор!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Вставьте USB-диск...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Файл не найден...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Обновление ПО завершено...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Ошибка обновления ПО...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Неизвестная ошибка...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Контрольная сумма верна.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Сбой обновления процессора.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Обновление процессора завершено...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Код ошибки: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Тайм-аут</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Тайм-аут</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>НЕИЗВЕСТНО</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
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
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Маска:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Шлюз:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Выключить</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>защищена</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>нет сетей</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Дата и время</translation>
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
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Время до сна</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Подсветка</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Цвета фаз</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>ВЫКЛ</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>Част. =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Тренд</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Удержание</translation>
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
        <translation>Част(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Неверный ввод!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Частота отсчётов:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Длительность:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Осталось:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Форма сигнала</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>Захват ждёт начала.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>Идёт захват.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>Захват завершён.
Данные находятся в памяти.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>Память не принимает данные.
Захваченное находится в памяти.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>Захват завершён
до получения данных.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Остановить
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> текущую запись?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Форма сигнала</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>След.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Старт</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Длительность:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Частота отсчётов:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Имя файла:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Свободная память:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Для захвата нет места.
Удалите файлы в памяти.</translation>
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
        <translation>Фликер</translation>
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
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(сохранён)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Неверный ввод!</translation>
    </message>
</context>
</TS>
