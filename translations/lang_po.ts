<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Wyłączyć przyrząd?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>Rejestrator pracuje!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Zapisz: zapisuje dane.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Wyjście: usuwa dane i kończy.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Restart: usuwa dane i uruchamia rejestrator ponownie.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>Zadanie &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; jest w toku.
Czy zakończyć?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Wolty/Ampery/Herce</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Zapady i wzrosty</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Moc i energia</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Asymetria</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transjenty</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Prąd rozruchu</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Rejestrator</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oscyloskop</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Przebieg</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Sygnały w sieci</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Falownik</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibracja</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibracja</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>Zero:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>Napięcie:</translation>
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
        <translation>Prąd:</translation>
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
        <translation>Kalibracja zera ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Kalibracja napięcia 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Kalibracja napięcia 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Kalibracja napięcia 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Kalibracja napięcia 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Kalibracja prądu 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Kalibracja prądu 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Kalibracja prądu 65mV/kA ...</translation>
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
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>OK!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>Trwa kalibracja, 
czy zakończyć?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Edycja cęgów</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nazwa :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Przekładnia :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Zakres I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Elastyczne :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Nazwa cęgów</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Przekładnia (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>Zakres I (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Pusta nazwa!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Niepoprawna nazwa!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>Dozwol.%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>Zdarzenia:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>CZAS</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYP</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>POZIOM</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>CZAS TRW.</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Kopiowanie plików</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Anulowano</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Poziom wyżej</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>TYP</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>CZAS</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>OPIS</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>brak plików</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
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
        <translation>Wstecz</translation>
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
        <translation>Wartości</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
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
        <translation>Prąd rozruchu</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Domyślne</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Prąd znam.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histereza</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Załączenie</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>Zapis %1 przerwano %2</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>Zapis %1, planowany na %2,
przepadł po zaniku zasilania.</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Harmoniczne: czas w limitach</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Harmoniczne: limit dla tego czasu</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Harmoniczne: limit dla całego czasu</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Kolumna</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: wartości</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Czas w limitach</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Limit górny</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Górny, zawsze</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Limit dolny</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Dolny, zawsze</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histereza</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Dozwolona liczba</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Napięcie</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Zapady</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Wzrosty</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Przerwy</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Czas ustalenia</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Minimalny skok</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Minimalna szybkość</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Asymetria</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Sygnały w sieci</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Częstotliwość 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Częstotliwość 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, czas</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, limit</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, zawsze</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, czas</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, limit</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, zawsze</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Przeciwna, czas</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Przeciwna, limit</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Przeciwna, zawsze</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Zerowa, czas</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Zerowa, limit</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Zerowa, zawsze</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Czas 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Limit 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Zawsze 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Czas 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Limit 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Zawsze 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampa</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>lampa</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Wznów</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Parametry</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Rejestrator</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>Częst. =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>Syg 1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>Syg 1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Syg 2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>Syg 2(%1)</translation>
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
        <translation>Syg 1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Syg 2(%)</translation>
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
        <translation>Typ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Formatuj</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>Na USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Zaznacz wsz.</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Odznacz wsz.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Zajęte:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Wolne:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>Plik jest używany przez trwający pomiar.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Trwa rejestracja.
Najpierw musi się zakończyć.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>Pamięć zostanie sformatowana, 
kontynuować?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Usuwanie...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Błąd!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Usunąć plik?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Błąd! Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Włóż pamięć USB...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Skopiować pliki?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>Plik już istnieje,
zastąpić?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Za mało miejsca na nośniku wymiennym.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Naciśnij F1-F5, aby zobaczyć więcej</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>Wolty/Ampery/Herce
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>Zapady i wzrosty
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Harmoniczne
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Moc i energia
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>Migotanie
</translation>
    </message>
    <message>
        <source>Unbalance
</source>
        <translation>Asymetria
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transjenty
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Użytkownik
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Prąd rozruchu
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Przebieg
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Sygnały
w sieci</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Rejestrator
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Zapisz/restart</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Odrzuć/restart</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Zapisz i wyjdź</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Odrzuć i wyjdź</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjście</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Tak, wszystkie</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Nie, żadnego</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
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
        <translation>Harm.</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>Asym.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>Syg.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Asym., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekuje</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Trwa</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Zakończone</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>W granicach</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Przekroczony limit</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Asym., Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>USTAWIENIA</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source> d</source>
        <translation> d</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limity</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>Dozwol.%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
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
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Najgorsza</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Zapady</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Wzrosty</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Przerwy</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Asymetria</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Przec.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Sygnały w sieci</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Asymetria(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Częst(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Domyślne</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Kolory faz</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Uziemienie</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>Częst. =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U wej</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I wej</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P wej</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U wyj</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I wyj</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P wyj</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Sprawność</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>Falownik</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>1-fazowy</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>3-fazowy</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U wej</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U wyj</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I wej</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I wyj</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Sprawność %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P wyj</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
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
        <translation>Zeruj</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Suma</translation>
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
        <translation>Typ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>WŁASNE</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Wartości</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Moc</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Jakość</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U harmon.</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I harmon.</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U interharm.</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I interharm.</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>Sygnaliz.</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Częstotliwość</translation>
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
        <translation>Asymetria</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms kąt) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms kąt) 51-100</translation>
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
        <translation>Sygnały w sieci</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Rejestrator</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Odczyt...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Odwróć</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Czas trwania:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Interwał:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Wolna pamięć:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Następ.</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Brak miejsca na zapis.
Usuń pliki w pamięci.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Zapis zaczyna się przy 50 MB wolnych.
Usuń pliki w pamięci.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Czas trwania:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Interwał:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Wolna pamięć:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>Rejestrator czeka na start.
Bieżące dane i szczegóły są na innych stronach.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>Rejestrator pracuje.
Bieżące dane i szczegóły są na innych stronach.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>Rejestracja zakończona.
Dane są w pamięci.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Rejestrator</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Zapisz: zapisuje dane.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Wyjście: usuwa dane i kończy.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Restart: usuwa dane i uruchamia rejestrator ponownie.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>Pamięć nie przyjmuje już danych.
Usuń pliki w pamięci.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 d, %2 h</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Half-cycle values of the currents</source>
        <translation>Wartości półokresowe prądów</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Wartości półokresowe napięć</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Przebieg prądów</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Przebieg napięć</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Harmoniczne napięcia i ich granice</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Napięcie resztkowe i czas zapadów, wzrostów i przerw</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Przerwa</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Wzrost</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Zapad</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Trendy</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Najmniejsza i największa wartość w każdej chwili; granice kreskowane.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Osiągnięte w udziale czasu, procent podstawowej</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Rząd</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Nie zapisano żadnego zdarzenia.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Zdarzenie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Faza</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Od znamionowego</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>trwa</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Zakończone przed początkiem zapisu: wykryte przez trwający pomiar i nieliczone w ocenie.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Dalsze zdarzenia, nieujęte: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Najgorsze chwile</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Przepięcie</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Przyrząd i ustawienia</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numer seryjny</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Układ</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Napięcie znamionowe</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Częstotliwość znamionowa</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Cęgi</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Przekładnia</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Zestaw granic</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Granice pochodzą z zestawu wybranego do tego raportu. Zapis nie mówi, jakiego zestawu używał przyrząd.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Braki i nieocenione</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>Nie można ocenić: %1 (%2).</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, przedziały bez wartości: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Niepełne przedziały dziesięciominutowe: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Nic.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Wszystkie czasy w UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Sygnał sieciowy %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Częstotliwość</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Napięcie</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Asymetria</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Asymetria, składowa zerowa</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Harmoniczna %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Szybka zmiana napięcia</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Prąd rozruchu</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>nie oceniono</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>bez granicy</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>przedziały dłuższe niż dziesięć minut</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>przedziały dłuższe niż trzy sekundy</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>nie zapisano</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Zapis przebiegu</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Zapisana strona</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Rejestrator</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Zapis</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Raport jakości energii</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>Zasilanie nie spełnia %1.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>Zasilanie spełnia %1.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Nie było napięcia: nie można nic ocenić.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>Zapis nie zawiera nic, co można ocenić.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>pełny</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>ucięty</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>uszkodzony w środku</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>nieczytelny</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>%1 w tygodniu</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Ocena</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Wielkość</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Osiągnięto</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Najgorsza</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Kiedy</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>W normie</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Oceniono</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Przyrząd</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>Zapis jest krótszy niż tydzień. Granice dotyczą tygodni: wynik jest orientacyjny.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Ocenione tygodnie, każdy osobno: %1. Tabela pokazuje najgorszy.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>Zapis nie jest pełny. Oceniono to, co dało się odczytać.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Osiągnięto: dotąd sięgają wartości w udziale czasu wymaganym przez granicę. W normie: udział, który ją spełnia. Oceniono: część zapisu, która ma wartości.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Przedziały dziesięciominutowe z przerwą, nieocenione: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Przedziały dziesięciominutowe z zapadem lub wzrostem, oznaczone i ocenione jak pozostałe: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Bez nich wynik byłby inny.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Bez nich wynik jest taki sam.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>Norma wymaga częstotliwości przez 99,5 % roku; zestaw granic ocenia tygodnie.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Przyrząd, napięcie i częstotliwość: porównuje stokrotność odchyłki w V lub Hz z granicą w procentach i wystarcza jedna wartość wewnątrz. Stąd inny wynik.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Przyrząd, harmoniczne: jedna wartość nie mniejsza od granicy oznacza niespełnienie, bez względu na udział. Stąd inny wynik.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Przyrząd, asymetria i migotanie: wystarcza jedna wartość poniżej granicy. Stąd inny wynik.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>wartość znamionowa nieznana</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Napięcie, harmoniczne, asymetria, częstotliwość i migotanie: zdarzenia znalezione przez przyrząd według jego progów. Ocena na nich nie polega.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>W ocenionym zakresie zasilanie spełnia %1.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>każdy z przedziałów jest niepełny lub zawiera przerwę</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Orientacyjnie, mniej niż tydzień (%2): zasilanie nie mieściło się w granicach %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Orientacyjnie, mniej niż tydzień (%2): w ocenionym zakresie zasilanie mieściło się w granicach %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Orientacyjnie, mniej niż tydzień (%2): zasilanie mieściło się w granicach %1.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 oceniono tylko przez %2 czasu.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>Ostatni trwa tylko %1.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>Zdarzenia:</translation>
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
        <translation>Restart</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>Stan systemu:

Rejestrator: %1
Wszystkie zdarzenia: %2
Zapady: %3;   Wzrosty: %4;   Przerwy: %5;   Transjenty: %6;   Rozruchy: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>pracuje</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>zatrzymany</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Ekran </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Dane </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: edycja nazwy</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>Plik &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; już istnieje.
Czy go zastąpić?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>Częst. =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Domyślne</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Cęgi</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>Przekł. I :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>Przekł. U :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Kanał :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fazy</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutralny</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Cęgi :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Czułość :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Zakres I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Elastyczne :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>licznik</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>mianownik</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Tych cęgów nie można zmienić!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Usunąć cęgi?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>Takie cęgi już istnieją!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>UKŁAD POŁĄCZEŃ</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>UKŁAD POŁĄCZEŃ</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Strona 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Strona 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Strona 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Domyślne</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>Migotanie</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Krzywa wagowa Plt</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Funkcje</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Harmoniczne</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Migotanie</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transjenty</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Prąd rozruchu</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Sygnały w sieci</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Prąd rozruchu</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Prąd znam.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histereza</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniczne</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>Metoda wsp. K:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>Wsp. K, par. e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>Wsp. K, par. q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>wbudowany</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>w użyciu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Pusta nazwa!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Niepoprawna nazwa!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Już istnieje. Zastąpić?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Zastąp</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Nazwa nowych limitów</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Nazwa limitów</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Usunąć limity?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limity</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: wartości</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Układ</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Uznam</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Częst.</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Cęgi</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Nast. strona</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Pomiar</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Limity</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funkcje</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Poprz. strona</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Pomiar</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Sygnały w sieci</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Częst. sygnału 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Próg detekcji 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Częst. sygnału 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Próg detekcji 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Układ:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Uznam:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Częst.:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Limity:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fazy</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutralny</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Cęgi</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>Przekł. I</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>Przekł. U</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>Zakres I</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transjenty</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Napięcie znamionowe</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Napięcie fazowe</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Napięcie międzyfazowe</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Własne: klawisze góra i dół zmieniają wartość</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Własne: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>Kursor</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Wł.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Wył.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>WSZ.</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>INTERHARM.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Faza</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Linia</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Wybrane</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>Natychmiast</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>O godzinie</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dzień</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuta</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Brak zapisu:
pamięć pełna</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>Zdarzenia</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Domyślne</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transjenty</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Domyślne</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Próg</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>WYZWOL.:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Poprz.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Następ.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>Częst. =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
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
        <translation>Przec.</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Zerowa</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>Częst. =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Wektory</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
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
        <translation>Jakość energii</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data i czas</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Strefa czasowa:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Maska:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Brama:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>USTAWIENIA LAN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>Użyj DHCP</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statyczny</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>Ustawienia IP</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>Używane IP:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Wykonaj</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjście</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>Trwa aktualizacja. Nie dotykać!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Włóż pamięć USB...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Nie znaleziono pliku...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Aktualizacja oprogramowania zakończona...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Błąd aktualizacji oprogramowania...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Nieznany błąd...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Suma kontrolna firmware poprawna.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Błąd aktualizacji firmware.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Aktualizacja firmware zakończona...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Kod błędu: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Przekroczony czas</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Przekroczony czas</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>NIEZNANY</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjście</translation>
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
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Maska:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Brama:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Łączenie</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Szukanie</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Rozłączono</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Wyłącz</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Włącz</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>zabezpieczona</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>brak sieci</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Rozłączono</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data i czas</translation>
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
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Czas wygaszenia</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Podświetlenie</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Kolory faz</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>WYŁ.</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>Częst. =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Zatrzymaj</translation>
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
        <translation>Częst(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Niepoprawna wartość!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Próbkowanie:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Czas trwania:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Pozostało:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Przebieg</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>Przechwytywanie czeka na start.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>Przechwytywanie trwa.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>Przechwytywanie zakończone.
Dane są w pamięci.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>Pamięć nie przyjmuje danych.
Przechwycone dane są w pamięci.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>Przechwytywanie zakończono
przed zebraniem danych.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Czy zatrzymać
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> bieżący zapis?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Przebieg</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Następ.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Czas trwania:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Próbkowanie:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nazwa pliku:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Wolna pamięć:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Brak miejsca na przechwycenie.
Usuń pliki w pamięci.</translation>
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
        <translation>Migotanie</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(zapisane)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Niepoprawna wartość!</translation>
    </message>
</context>
</TS>
