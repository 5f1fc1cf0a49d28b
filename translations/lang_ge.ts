<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Gerät ausschalten?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>Der Logger läuft!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Speichern: Daten speichern.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Ende: Daten löschen und beenden.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Neustart: Daten löschen und Logger neu starten.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>Die Aufgabe &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; läuft.
Soll sie beendet werden?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Volt/Ampere/Hertz</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Einbr. &amp; Überhöh.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Leistung &amp; Energie</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Unsymmetrie</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transienten</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Einschaltstrom</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Logger</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oszilloskop</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Rundsteuersignale</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Wechselrichter</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>Nullpunkt:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>Spannung:</translation>
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
        <translation>Strom:</translation>
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
        <translation>Nullpunkt wird kalibriert ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Spannung 120V wird kalibriert ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Spannung 220V wird kalibriert ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Spannung 400V wird kalibriert ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Spannung 600V wird kalibriert ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Strom 1mV/1A wird kalibriert ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Strom 10mV/1A wird kalibriert ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Strom 65mV/kA wird kalibriert ...</translation>
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
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>OK!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>Die Kalibrierung läuft, 
soll sie beendet werden?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Zange bearbeiten</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Name :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Verhältnis :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>I-Bereich :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexibel :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Name der Zange</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Verhältnis (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>I-Bereich (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Der Name ist leer!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Ungültiger Name!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>Zulässig%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>Ereign. :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>ZEIT</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYP</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>PEGEL</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>DAUER</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Dateien werden kopiert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Abgebrochen</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Ebene höher</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>ZEIT</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>keine Dateien</translation>
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
        <translation>Halten</translation>
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
        <translation>Zurück</translation>
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
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
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
        <translation>Einschaltstrom</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Nennstrom</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hysterese</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalten</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>Aufzeichnung %1 wurde am %2 unterbrochen</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>Aufzeichnung %1, geplant für %2,
ging mit der Versorgung verloren.</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Harmonische: Zeit in den Grenzen</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Harmonische: Grenzwert für diese Zeit</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Harmonische: Grenzwert für 100 % der Zeit</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: Werte</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Zeit in den Grenzen</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Obergrenze</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Oben, immer</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Untergrenze</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Unten, immer</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hysterese</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Zulässige Anzahl</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Einbrüche</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Überhöhungen</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Unterbrechungen</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Beruhigungszeit</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Mindestsprung</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Mindeststeilheit</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Unsymmetrie</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Rundsteuersignale</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Frequenz 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Frequenz 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, Zeit</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, Grenzwert</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, immer</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, Zeit</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, Grenzwert</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, immer</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Gegensystem, Zeit</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Gegensystem, Grenzwert</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Gegensystem, immer</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Nullsystem, Zeit</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Nullsystem, Grenzwert</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Nullsystem, immer</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Zeit 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Grenzwert 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Immer 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Zeit 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Grenzwert 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Immer 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>Lampe</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Parameter</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Logger</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>Freq =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>Sig 1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>Sig 1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Sig 2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>Sig 2(%1)</translation>
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
        <translation>Sig 1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Sig 2(%)</translation>
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
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Formatieren</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>Auf USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Alle wählen</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Keine wählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Belegt:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Frei:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>Die Datei wird von der laufenden Messung benutzt.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Eine Aufzeichnung läuft.
Sie muss zuerst enden.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>Der Massenspeicher wird formatiert, 
fortfahren?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Wird gelöscht...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Fehler!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Datei löschen?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Fehler! Bitte noch einmal.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Bitte USB-Stick einstecken...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Dateien kopieren?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>Die Datei ist schon vorhanden,
ersetzen?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Zu wenig Platz auf dem USB-Speicher.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>F1-F5 drücken, um mehr zu erfahren</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>Volt/Ampere/Hertz
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>Einbr. &amp; Überhöh.
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Harmonische
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Leistung &amp; Energie
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>Flicker
</translation>
    </message>
    <message>
        <source>Unbalance
</source>
        <translation>Unsymmetrie
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transienten
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Benutzer
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Einschaltstrom
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Wellenform
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Rundsteuer-
signale</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Logger
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Speich. &amp; Neust.</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Verw. &amp; Neustart</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Speich. &amp; Ende</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Verw. &amp; Ende</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Ja, alle</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Nein, keine</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
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
        <translation>OS</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>Uns.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>RS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Unsym., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Beendet</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>Innerhalb der Grenzen</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Grenzwert überschritten</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
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
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Unsym., Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>EINSTELLEN</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source> d</source>
        <translation> T</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzwerte</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>Zulässig%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
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
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Einbrüche</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Überhöhungen</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Unterbr.</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Unsymmetrie</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Gegen</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Rundsteuersignale</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Unsymmetrie(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Freq(Hz)</translation>
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
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Phasenfarben</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Erde</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>Freq =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U ein</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ein</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P ein</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U aus</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I aus</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P aus</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Wirkungsgrad</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>Wechselrichter</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>1-phasig</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>3-phasig</translation>
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
        <translation>U ein</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U aus</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ein</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I aus</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Wirkungsgrad %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P aus</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
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
        <translation>Halten</translation>
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
        <translation>Rücksetzen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
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
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>FREI</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U Harmon.</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I Harmon.</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U Zwischenh.</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I Zwischenh.</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>Rundsteuer.</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Frequenz</translation>
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
        <translation>Unsymmetrie</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms Winkel) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms Winkel) 51-100</translation>
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
        <translation>Rundsteuersignale</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Logger</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Lesen...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervall:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Freier Speicher:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Für eine Aufzeichnung fehlt der Platz.
Bitte im Speicher Dateien löschen.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Eine Aufzeichnung beginnt mit 50 MB frei.
Bitte im Speicher Dateien löschen.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervall:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Freier Speicher:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>Der Logger wartet auf den Start.
Aktuelle Werte stehen auf den anderen Seiten.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>Der Logger läuft.
Aktuelle Werte stehen auf den anderen Seiten.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>Der Logger ist beendet.
Die Daten stehen im Speicher.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Logger</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Speichern: Daten speichern.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Ende: Daten löschen und beenden.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Neustart: Daten löschen und Logger neu starten.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>Der Speicher nimmt keine Daten mehr auf.
Bitte im Speicher Dateien löschen.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 T, %2 h</translation>
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
        <translation>Halbperiodenwerte der Ströme</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Halbperiodenwerte der Spannungen</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Kurvenform der Ströme</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Kurvenform der Spannungen</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Spannungsoberschwingungen und ihre Grenzen</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Restspannung und Dauer von Einbrüchen, Überhöhungen und Unterbrechungen</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Unterbrechung</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Überhöhung</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Einbruch</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Verläufe</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Kleinster und größter Wert zu jedem Zeitpunkt; Grenzen gestrichelt.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Erreicht im Zeitanteil, Prozent der Grundschwingung</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordnung</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Es wurde kein Ereignis aufgezeichnet.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Vom Nennwert</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>dauert an</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Vor Beginn der Aufzeichnung beendet: von der laufenden Messung gefunden und im Urteil nicht gezählt.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Weitere Ereignisse, nicht aufgeführt: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Schlimmste Momente</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Transiente</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Gerät und Einstellungen</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Nennspannung</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Nennfrequenz</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Zange</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Übersetzung</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Grenzwertsatz</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Die Grenzen sind die des für diesen Bericht gewählten Satzes. Eine Aufzeichnung sagt nicht, welcher Satz am Gerät galt.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Fehlendes und nicht Bewertetes</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>%1 konnte nicht bewertet werden: %2.</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, Intervalle ohne Wert: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Unvollständige Zehnminutenintervalle: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Nichts.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Alle Zeiten in UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Netzsignal %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Unsymmetrie</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Unsymmetrie, Nullsystem</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Oberschwingung %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Schnelle Spannungsänderung</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Einschaltstrom</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>nicht ok</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>unbewertet</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>keine Grenze</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>Intervalle länger als zehn Minuten</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>Intervalle länger als drei Sekunden</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>nicht aufgezeichnet</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Kurvenformaufnahme</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Gespeicherte Seite</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Logger</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Bericht zur Spannungsqualität</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>Die Versorgung hält %1 nicht ein.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>Die Versorgung hält %1 ein.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Es lag keine Spannung an: Nichts kann bewertet werden.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>Die Aufzeichnung enthält nichts, was bewertet werden kann.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>in der Mitte beschädigt</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>%1 je Woche</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Erreicht</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Schlechtester</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Innerhalb</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Bewertet</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>Die Aufzeichnung ist kürzer als eine Woche. Die Grenzen gelten für Wochen: Das Ergebnis ist ein Anhalt.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Bewertete Wochen, jede für sich: %1. Die Tabelle zeigt die schlechteste.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>Die Aufzeichnung ist nicht vollständig. Bewertet wurde, was lesbar war.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Erreicht: so weit gehen die Werte im Zeitanteil, den die Grenze verlangt. Innerhalb: der Anteil, der sie einhält. Bewertet: der Anteil der Aufzeichnung, der Werte hat.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Zehnminutenintervalle mit Unterbrechung, nicht bewertet: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Zehnminutenintervalle mit Einbruch oder Überhöhung, gekennzeichnet und wie die übrigen bewertet: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Ohne sie wäre das Ergebnis ein anderes.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Ohne sie ist das Ergebnis dasselbe.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>Die Norm verlangt die Frequenz in 99,5 % eines Jahres; der Grenzwertsatz bewertet Wochen.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Gerät, Spannung und Frequenz: Es vergleicht das Hundertfache der Abweichung in V oder Hz mit der Grenze in Prozent, und ein Wert innerhalb genügt. Daher das andere Ergebnis.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Gerät, Oberschwingungen: Ein Wert, der nicht unter der Grenze liegt, genügt für „nicht bestanden“, gleich bei welchem Anteil. Daher das andere Ergebnis.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Gerät, Unsymmetrie und Flicker: Ein Wert unter der Grenze genügt. Daher das andere Ergebnis.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>Nennwert nicht bekannt</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Spannung, Oberschwingungen, Unsymmetrie, Frequenz und Flicker: Ereignisse, wie das Gerät sie nach eigenen Schwellen fand. Das Urteil beruht nicht auf ihnen.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>Soweit bewertet, hält die Versorgung %1 ein.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>jedes seiner Intervalle ist unvollständig oder enthält eine Unterbrechung</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Anhalt aus weniger als einer Woche (%2): Die Versorgung hielt die Grenzen von %1 nicht ein.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Anhalt aus weniger als einer Woche (%2): Soweit bewertet, hielt die Versorgung die Grenzen von %1 ein.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Anhalt aus weniger als einer Woche (%2): Die Versorgung hielt die Grenzen von %1 ein.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 wurde nur in %2 der Zeit bewertet.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>Die letzte davon dauert nur %1.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>Ereign. :</translation>
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
        <translation>Neustart</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>Systemstatus:

Logger: %1
Ereignisse gesamt: %2
Einbrüche: %3;   Überhöhungen: %4;   Unterbrechungen: %5;   Transienten: %6;   Einschaltströme: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>gestoppt</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Bildschirm </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Daten </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: Name bearbeiten</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>Die Datei &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; ist vorhanden.
Soll sie überschrieben werden?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>Freq =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Zange</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>I-Übersetzung :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>U-Übersetzung :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Kanal :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phasen</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutralleiter</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Zange :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Empfindlichk. :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>I-Bereich :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexibel :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>Nenner</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Diese Zange ist nicht änderbar!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Zange löschen?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>Zange ist schon vorhanden!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>ANSCHLUSSART</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>ANSCHLUSSART</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Seite 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Seite 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Seite 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Plt-Bewertungskurve</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Harmonische</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Flicker</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transienten</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Einschaltstrom</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Rundsteuersignale</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Einschaltstrom</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Nennstrom</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hysterese</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Harmonische</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>K-Faktor, Verfahren:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>K-Faktor, Par. e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>K-Faktor, Par. q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>aktiv</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Der Name ist leer!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Ungültiger Name!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Schon vorhanden. Überschreiben?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Name der neuen Grenzwerte</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Name der Grenzwerte</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Grenzwerte löschen?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzwerte</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: Werte</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Unenn</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Freq</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Zange</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Messung</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Grenzwerte</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funktionen</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Messung</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Rundsteuersignale</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Rundsteuerfrequenz 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Erkennungsschwelle 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Rundsteuerfrequenz 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Erkennungsschwelle 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Anschluss:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Unenn:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Freq:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Grenzwerte:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phasen</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutralleiter</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Zange</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>I-Übersetzung</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>U-Übersetzung</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>I-Bereich</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transienten</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Nennspannung</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Sternspannung</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Leiterspannung</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Frei: Auf und Ab ändern den Wert</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Frei: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>ZWISCHENH.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Leiter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Auswahl</translation>
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
        <translation>Sofort</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>Zeitgesteuert</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minute</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Keine Speicherung:
Speicher voll</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transienten</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>AUSLÖSER:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>Freq =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
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
        <translation>Gegen</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>Freq =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
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
        <translation>Netzqualität</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Datum &amp; Uhrzeit</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Zeitzone:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Netzmaske:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>LAN-EINSTELLUNG</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>DHCP verwenden</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statisch</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>IP-Einstellung</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>IP in Gebrauch:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>Update läuft. Nicht bedienen!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Bitte USB-Stick einstecken...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Datei nicht gefunden...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Software-Update abgeschlossen...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Fehler beim Software-Update...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Unbekannter Fehler...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Prüfsumme der Firmware stimmt.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Firmware-Update fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Firmware-Update abgeschlossen...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Fehlercode: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Zeitüberschreitung</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Zeitüberschreitung</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ende</translation>
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
        <translation>Status:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Netzmaske:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindung wird hergestellt</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>gesichert</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>keine Netze</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Datum &amp; Uhrzeit</translation>
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
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Abschaltzeit</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Beleuchtung</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Phasenfarben</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>AUS</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>Freq =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
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
        <translation>Freq(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Ungültige Eingabe!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Abtastrate:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Restzeit:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>Die Aufnahme wartet auf den Start.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>Die Aufnahme läuft.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>Die Aufnahme ist beendet.
Die Daten stehen im Speicher.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>Der Speicher nimmt nichts mehr auf.
Das Aufgenommene steht im Speicher.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>Die Aufnahme wurde beendet,
bevor sie Daten hatte.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Soll die laufende
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> Aufzeichnung beendet werden?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Dauer:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Abtastrate:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dateiname:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Freier Speicher:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Für eine Aufnahme fehlt der Platz.
Bitte im Speicher Dateien löschen.</translation>
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
        <translation>Flicker</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(gespeichert)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Ungültige Eingabe!</translation>
    </message>
</context>
</TS>
