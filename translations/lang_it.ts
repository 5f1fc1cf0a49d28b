<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Spegnere lo strumento?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>Il registratore è in funzione!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Salva: salva i dati.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Esci: cancella i dati ed esce.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Riavvia: cancella i dati e riavvia il registratore.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>L&apos;attività &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; è in esecuzione.
Si desidera uscire?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Volt/Ampere/Hertz</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Buchi e sovratens.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armoniche</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Potenza ed energia</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Squilibrio</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transitori</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Corrente di spunto</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registratore</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oscilloscopio</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forma d&apos;onda</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Segnali in rete</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Inverter</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Calibrazione</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Calibrazione</translation>
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
        <translation>Tensione:</translation>
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
        <translation>Corrente:</translation>
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
        <translation>Calibrazione dello zero ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Calibrazione tensione 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Calibrazione tensione 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Calibrazione tensione 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Calibrazione tensione 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Calibrazione corrente 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Calibrazione corrente 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Calibrazione corrente 65mV/kA ...</translation>
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
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>OK!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>La calibrazione è in corso, 
si desidera uscire?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Modifica pinza</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nome :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Rapporto :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Portata I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flessibile :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Nome della pinza</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Rapporto (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>Portata I (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Nome vuoto!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Nome non valido!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>Ammesso%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>Eventi :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>LIVELLO</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>DURATA</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Copia dei file</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Annullato</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Su di un livello</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>DATA</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIZIONE</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>nessun file</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Andamento</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
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
        <translation>Indietro</translation>
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
        <translation>Misure</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Armoniche</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
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
        <translation>Corrente di spunto</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Corrente nominale</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Isteresi</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Commutazione</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>Registrazione %1 interrotta il %2</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>La registrazione %1, prevista per %2,
è andata persa con l&apos;alimentazione.</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Armoniche: tempo nei limiti</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Armoniche: limite per questo tempo</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Armoniche: limite per tutto il tempo</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonna</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: valori</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Tempo nei limiti</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Limite superiore</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Superiore, sempre</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Limite inferiore</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Inferiore, sempre</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Isteresi</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Numero ammesso</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensione</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armoniche</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Buchi</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Sovratensioni</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Interruzioni</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Tempo di stabilità</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Gradino minimo</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Velocità minima</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Squilibrio</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Segnali in rete</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Frequenza 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Frequenza 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, tempo</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, limite</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, sempre</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, tempo</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, limite</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, sempre</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Inversa, tempo</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Inversa, limite</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Inversa, sempre</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Omopolare, tempo</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Omopolare, limite</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Omopolare, sempre</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Tempo 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Limite 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Sempre 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Tempo 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Limite 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Sempre 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampada</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>lampada</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Avvia</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Parametri</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Registratore</translation>
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
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Andamento</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>Seg 1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>Seg 1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Seg 2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>Seg 2(%1)</translation>
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
        <translation>Seg 1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Seg 2(%)</translation>
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
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Formatta</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>Su USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Sel. tutto</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Usato:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Libero:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>Il file è usato dalla misura in corso.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Una registrazione è in corso.
Deve prima terminare.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>La memoria di massa sarà formattata, 
continuare?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Eliminazione...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Errore!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Eliminare il file?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Errore! Riprovare.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Inserire una chiave USB...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Copiare i file?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>Il file esiste già,
sostituirlo?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Spazio insufficiente sul dispositivo rimovibile.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Premere F1-F5 per altre informazioni</translation>
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
        <translation>Buchi e sovratens.
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Armoniche
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Potenza ed energia
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
        <translation>Squilibrio
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transitori
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Utente
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Corrente di spunto
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Forma d&apos;onda
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Segnali
in rete</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Registratore
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Salva/riavvia</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Scarta/riavvia</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Salva ed esci</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Scarta ed esci</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Sì a tutti</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>No a tutti</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
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
        <translation>Arm.</translation>
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
        <translation>Squ.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>Segn.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Squil., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminato</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>Entro i limiti</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Limite superato</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Andamento</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armoniche</translation>
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
        <translation>Squil., Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>IMPOSTA</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source> d</source>
        <translation> g</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiti</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>Ammesso%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
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
        <translation>Armoniche</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Peggiore</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Buchi</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Sovratensioni</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Interr.</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Squilibrio</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Inv.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Segnali in rete</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Squilibrio(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Freq(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Colori delle fasi</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Terra</translation>
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
        <translation>Andamento</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U ing</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ing</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P ing</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U usc</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I usc</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P usc</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Rendimento</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>Monofase</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>Trifase</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U ing</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U usc</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ing</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I usc</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Rendimento %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P usc</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Andamento</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
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
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
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
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>LIBERO</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U armoniche</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I armoniche</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U interarm.</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I interarm.</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>Segnali</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Frequenza</translation>
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
        <translation>Squilibrio</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms angolo) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms angolo) 51-100</translation>
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
        <translation>Segnali in rete</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Registratore</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Lettura...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverti</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durata:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervallo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memoria disponibile:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parametri</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Non c&apos;è spazio per una registrazione.
Eliminare file nella memoria.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Una registrazione inizia con 50 MB liberi.
Eliminare file nella memoria.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durata:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervallo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memoria disponibile:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>Il registratore attende l&apos;avvio.
Le altre pagine mostrano i dati in tempo reale e i dettagli.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>Il registratore è in funzione.
Le altre pagine mostrano i dati in tempo reale e i dettagli.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>La registrazione è terminata.
I dati sono nella memoria.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registratore</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Salva: salva i dati.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Esci: cancella i dati ed esce.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Riavvia: cancella i dati e riavvia il registratore.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>La memoria non accetta più dati.
Eliminare file nella memoria.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 g, %2 h</translation>
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
        <translation>Valori di semiperiodo delle correnti</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Valori di semiperiodo delle tensioni</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Forma d&apos;onda delle correnti</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Forma d&apos;onda delle tensioni</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Armoniche di tensione e limiti</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Tensione residua e durata di buchi, sovratensioni e interruzioni</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Interruzione</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Sovratensione</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Buco</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Andamenti</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Valore minimo e massimo di ogni istante; limiti tratteggiati.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armoniche</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Raggiunto nella quota di tempo, percento della fondamentale</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Nessun evento registrato.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Del nominale</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Concluso prima dell&apos;inizio della registrazione: rilevato dalla misura in corso e non contato nel verdetto.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Altri eventi non elencati: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Momenti peggiori</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Transitorio</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Strumento e impostazioni</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
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
        <translation>Collegamento</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Tensione nominale</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Frequenza nominale</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Serie di limiti</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>I limiti sono quelli della serie scelta per questo rapporto. La registrazione non dice quale serie era in uso sullo strumento.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Mancante e non valutato</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>%1 non valutabile: %2.</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, intervalli senza valore: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Intervalli di dieci minuti incompleti: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Niente.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Tutti gli orari sono in UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Segnale di rete %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenza</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensione</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Squilibrio</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Squilibrio, sequenza zero</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Armonica %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Variazione rapida di tensione</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Corrente di spunto</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>no</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>non valutato</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>senza limite</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>intervalli più lunghi di dieci minuti</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>intervalli più lunghi di tre secondi</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>non registrato</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Cattura forma d&apos;onda</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Pagina salvata</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registratore</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Rapporto sulla qualità dell&apos;energia</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>L&apos;alimentazione non è conforme a %1.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>L&apos;alimentazione è conforme a %1.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Nessuna tensione: nulla può essere valutato.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>La registrazione non contiene nulla di valutabile.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>completa</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>troncata</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>danneggiata nel mezzo</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>%1 a settimana</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Giudizio</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandezza</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Raggiunto</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Peggiore</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Entro</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Valutato</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Strumento</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>La registrazione è più breve di una settimana. I limiti valgono per settimane: il risultato è indicativo.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Settimane valutate singolarmente: %1. La tabella mostra la peggiore.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>La registrazione non è completa. È stato valutato ciò che era leggibile.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Raggiunto: fin qui arrivano i valori nella quota di tempo richiesta dal limite. Entro: la quota che lo rispetta. Valutato: la quota della registrazione che ha valori.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Intervalli di dieci minuti con interruzione, non valutati: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Intervalli di dieci minuti con buco o sovratensione, marcati e valutati come gli altri: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Senza di essi il risultato sarebbe diverso.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Senza di essi il risultato è lo stesso.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>La norma richiede la frequenza nel 99,5 % di un anno; la serie di limiti valuta settimane.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Strumento, tensione e frequenza: confronta cento volte lo scostamento in V o Hz con il limite in percento, e basta un valore entro il limite. Da qui il risultato diverso.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Strumento, armoniche: basta un valore non inferiore al limite per non essere conforme, qualunque sia la quota. Da qui il risultato diverso.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Strumento, squilibrio e flicker: basta un valore sotto il limite. Da qui il risultato diverso.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>valore nominale sconosciuto</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Tensione, armoniche, squilibrio, frequenza e flicker: eventi rilevati dallo strumento secondo le proprie soglie. Il giudizio non si basa su di essi.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>Per quanto valutato, l&apos;alimentazione è conforme a %1.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>ogni suo intervallo è incompleto o contiene un&apos;interruzione</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Indicazione su meno di una settimana (%2): l&apos;alimentazione non ha rispettato i limiti di %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Indicazione su meno di una settimana (%2): per quanto valutato, l&apos;alimentazione ha rispettato i limiti di %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Indicazione su meno di una settimana (%2): l&apos;alimentazione ha rispettato i limiti di %1.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 valutabile solo per il %2 del tempo.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>L&apos;ultima dura solo %1.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>Eventi :</translation>
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
        <translation>Riavvia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>Stato del sistema:

Registratore: %1
Totale eventi: %2
Buchi: %3;   Sovratensioni: %4;   Interruzioni: %5;   Transitori: %6;   Spunti: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>in funzione</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>fermo</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Schermata </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Dati </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: modifica il nome</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>Il file &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; esiste già.
Sovrascriverlo?</translation>
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
        <translation>Predefinito</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>Rapporto I :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>Rapporto U :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Canale :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fasi</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutro</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Pinza :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Sensibilità :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Portata I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flessibile :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>numeratore</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>denominatore</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Pinza non modificabile!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Eliminare la pinza?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>La pinza esiste già!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>COLLEGAMENTO</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>COLLEGAMENTO</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Pagina 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Pagina 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Pagina 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Ponderazione Plt</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Funzioni</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Armoniche</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Flicker</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transitori</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Corrente di spunto</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Segnali in rete</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Corrente di spunto</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Corrente nominale</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Isteresi</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Armoniche</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>Metodo fattore K:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>Fattore K, par. e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>Fattore K, par. q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>integrato</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>in uso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Nome vuoto!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Nome non valido!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Esiste già. Sovrascrivere?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sovrascrivi</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Nome dei nuovi limiti</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Nome dei limiti</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Eliminare i limiti?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiti</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: valori</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Cablaggio</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Unom</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Freq</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Pagina succ.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Misura</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Limiti</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funzioni</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Pagina prec.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Misura</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Segnali in rete</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Frequenza segnale 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Soglia di rilevamento 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Frequenza segnale 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Soglia di rilevamento 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Cablaggio:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Unom:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Freq:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Limiti:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fasi</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutro</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>Rapporto I</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>Rapporto U</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>Portata I</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transitori</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Tensione nominale</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Tensione di fase</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Tensione concatenata</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Libero: Su e Giù cambiano il valore</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Libero: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>Cursore</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TUTTI</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>INTERARM.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Linea</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selezion.</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>Immediato</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>Programmato</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mese</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Nulla è salvato:
memoria piena</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transitori</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>TRIGGER:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
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
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
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
        <translation>Inv.</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Omop.</translation>
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
        <translation>Vettori</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
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
        <translation>Qualità della rete</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Fuso orario:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Maschera:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>IMPOSTAZIONI LAN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>Usa DHCP</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statico</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>Impostazioni IP</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>IP in uso:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Esegui</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
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
        <translation>Aggiornamento in corso. Non operare!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Inserire una chiave USB...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>File non trovato...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Aggiornamento software completato...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Errore di aggiornamento software...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Errore sconosciuto...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Checksum del firmware corretto.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Aggiornamento firmware non riuscito.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Aggiornamento firmware completato...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Codice errore: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Tempo scaduto</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Tempo scaduto</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>SCONOSCIUTO</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
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
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Maschera:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Disattiva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>protetta</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>nessuna rete</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data e ora</translation>
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
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Tempo di riposo</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luce</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Colori delle fasi</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
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
        <translation>Andamento</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Blocca</translation>
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
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Immissione non valida!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Campionamento:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durata:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Tempo restante:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forma d&apos;onda</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>La cattura attende l&apos;avvio.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>La cattura è in corso.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>La cattura è terminata.
I dati sono nella memoria.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>La memoria non accetta altri dati.
Quanto catturato è nella memoria.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>La cattura è terminata
prima di avere dati.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Interrompere
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> la registrazione in corso?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Forma d&apos;onda</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durata:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Campionamento:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome del file:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memoria disponibile:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Non c&apos;è spazio per una cattura.
Eliminare file nella memoria.</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(memorizzata)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Immissione non valida!</translation>
    </message>
</context>
</TS>
