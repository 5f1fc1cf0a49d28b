<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Desligar o equipamento?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>O registador está em execução!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Guardar: guarda os dados.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Sair: elimina os dados e sai.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Reiniciar: elimina os dados e reinicia o registador.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>A tarefa &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; está em execução.
Deseja sair?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Volts/Amperes/Hertz</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Cavas e sobretens.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmónicas</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Potência e energia</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desequilíbrio</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transitórios</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Corr. de arranque</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registador</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Osciloscópio</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Sinais na rede</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Inversor</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Calibração</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Calibração</translation>
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
        <translation>Tensão:</translation>
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
        <translation>A calibrar o zero ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>A calibrar tensão 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>A calibrar tensão 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>A calibrar tensão 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>A calibrar tensão 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>A calibrar corrente 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>A calibrar corrente 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>A calibrar corrente 65mV/kA ...</translation>
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
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>OK!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>A calibração está em curso, 
deseja sair?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Editor de pinça</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nome :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Relação :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Escala I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexível :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Nome da pinça</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Relação (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>Escala I (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Nome vazio!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Nome inválido!</translation>
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
        <translation>Permitido%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>Eventos :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
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
        <translation>NÍVEL</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>DURAÇÃO</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>A copiar ficheiros</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Cancelado</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Subir nível</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>DESCRIÇÃO</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>sem ficheiros</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Tendência</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
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
        <translation>Voltar</translation>
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
        <translation>Valores</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Harmónicas</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
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
        <translation>Corr. de arranque</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predefin.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Corrente nominal</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histerese</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Comutação</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Lig.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desl.</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>Registo %1 interrompido em %2</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>O registo %1, previsto para %2,
perdeu-se com a falta de alimentação.</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Harmónicas: tempo nos limites</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Harmónicas: limite para este tempo</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Harmónicas: limite para todo o tempo</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Coluna</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: valores</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Tempo nos limites</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Limite superior</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Superior, sempre</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Limite inferior</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Inferior, sempre</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histerese</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Número permitido</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensão</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmónicas</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Cavas</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Sobretensões</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Interrupções</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Tempo estável</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Salto mínimo</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Taxa mínima</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desequilíbrio</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Sinais na rede</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Frequência 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Frequência 2</translation>
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
        <translation>Homopolar, tempo</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Homopolar, limite</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Homopolar, sempre</translation>
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
        <translation>Lâmpada</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>lâmpada</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Correr</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Parâmetros</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Registador</translation>
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
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendência</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>Sin 1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>Sin 1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Sin 2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>Sin 2(%1)</translation>
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
        <translation>Sin 1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Sin 2(%)</translation>
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
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Formatar</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>Para USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Sel. tudo</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Usado:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Livre:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>O ficheiro está a ser usado pela medição em curso.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Há um registo em curso.
Tem de terminar primeiro.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>A memória será formatada, 
continuar?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>A eliminar...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Erro!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Eliminar o ficheiro?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Erro! Tente de novo.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Insira uma pen USB...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Copiar os ficheiros?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>O ficheiro já existe,
substituir?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Espaço insuficiente no dispositivo amovível.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Prima F1-F5 para mais informações</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>Volts/Amperes/Hertz
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>Cavas e sobretens.
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Harmónicas
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Potência e energia
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
        <translation>Desequilíbrio
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transitórios
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Utilizador
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Corr. de arranque
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Forma de onda
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Sinais
na rede</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Registador
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Guardar/reinic.</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Descart./reinic.</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Guardar e sair</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Descart. e sair</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Sim a todos</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Não a todos</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
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
        <translation>Flicker</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>Des.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>Sin.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Deseq., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em curso</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>Dentro dos limites</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Limite excedido</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendência</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmónicas</translation>
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
        <translation>Deseq., Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>AJUSTES</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
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
        <translation>Limites</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome do ficheiro:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>Permitido%</translation>
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
        <translation>Harmónicas</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pior</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Cavas</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Sobretensões</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Interr.</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desequilíbrio</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Inv.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Sinais na rede</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Desequilíbrio(%)</translation>
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
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Predefin.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Cores das fases</translation>
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
        <translation>Tendência</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U ent</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ent</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P ent</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U saí</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I saí</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P saí</translation>
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
        <translation>Inversor</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>Monofásico</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>Trifásico</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U ent</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U saí</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ent</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I saí</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Rendimento %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P saí</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Tendência</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
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
        <translation>Repor</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
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
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>LIVRE</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potência</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U harmónicas</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I harmónicas</translation>
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
        <translation>Sinais</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Frequência</translation>
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
        <translation>Desequilíbrio</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms ângulo) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms ângulo) 51-100</translation>
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
        <translation>Sinais na rede</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Registador</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>A ler...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duração:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervalo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memória disponível:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Não há espaço para um registo.
Elimine ficheiros na memória.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Um registo começa com 50 MB livres.
Elimine ficheiros na memória.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duração:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervalo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memória disponível:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>O registador aguarda o início.
As outras páginas mostram os dados em tempo real e os detalhes.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>O registador está em execução.
As outras páginas mostram os dados em tempo real e os detalhes.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>O registo terminou.
Os dados estão na memória.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registador</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Guardar: guarda os dados.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Sair: elimina os dados e sai.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Reiniciar: elimina os dados e reinicia o registador.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>A memória não aceita mais dados.
Elimine ficheiros na memória.</translation>
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
        <translation>Valores de meio ciclo das correntes</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Valores de meio ciclo das tensões</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Forma de onda das correntes</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Forma de onda das tensões</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Harmónicas de tensão e limites</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Tensão residual e duração de cavas, sobretensões e interrupções</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Interrupção</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Sobretensão</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Cava</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Tendências</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Valor mínimo e máximo de cada momento; limites a tracejado.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmónicas</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Atingido na percentagem de tempo, percentagem da fundamental</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordem</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Nenhum evento registado.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
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
        <translation>Início</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Do nominal</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>continua</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Terminado antes do início do registo: detetado pela medição em curso e não contado no veredito.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Outros eventos não listados: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Piores momentos</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Transitório</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Aparelho e definições</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de série</translation>
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
        <translation>Ligação</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Tensão nominal</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Frequência nominal</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinça</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Relação</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Conjunto de limites</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Os limites são os do conjunto escolhido para este relatório. O registo não diz que conjunto estava em uso no aparelho.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Em falta e não avaliado</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>Não foi possível avaliar %1: %2.</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, intervalos sem valor: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Intervalos de dez minutos incompletos: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Nada.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Todas as horas são UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Sinal de rede %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensão</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desequilíbrio</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Desequilíbrio, sequência zero</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Harmónica %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Variação rápida de tensão</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Corr. de arranque</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>cumpre</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>falha</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>não avaliado</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sem limite</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>intervalos superiores a dez minutos</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>intervalos superiores a três segundos</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>não foi registado</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Captura de forma de onda</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Página guardada</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registador</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registo</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Relatório de qualidade da energia</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>A alimentação não cumpre %1.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>A alimentação cumpre %1.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Não havia tensão: nada pode ser avaliado.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>O registo não contém nada que possa ser avaliado.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>danificado no meio</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>ilegível</translation>
    </message>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>%1 por semana</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Veredicto</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeza</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Atingido</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pior</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quando</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Avaliado</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Aparelho</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>O registo é inferior a uma semana. Os limites valem para semanas: o resultado é indicativo.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Semanas avaliadas uma a uma: %1. A tabela mostra a pior.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>O registo não está completo. Foi avaliado o que se pôde ler.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Atingido: até aí vão os valores na percentagem de tempo que o limite pede. Dentro: a percentagem que o cumpre. Avaliado: a parte do registo que tem valores.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Intervalos de dez minutos com interrupção, não avaliados: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Intervalos de dez minutos com cava ou sobretensão, marcados e avaliados como os outros: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Sem eles o resultado seria outro.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Sem eles o resultado é o mesmo.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>A norma exige a frequência em 99,5 % de um ano; o conjunto de limites avalia semanas.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Aparelho, tensão e frequência: compara cem vezes o desvio em V ou Hz com o limite em percentagem, e basta um valor dentro. Daí o outro resultado.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Aparelho, harmónicas: basta um valor que não esteja abaixo do limite para não cumprir, seja qual for a percentagem. Daí o outro resultado.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Aparelho, desequilíbrio e tremulação: basta um valor abaixo do limite. Daí o outro resultado.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>o valor nominal não é conhecido</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Tensão, harmónicas, desequilíbrio, frequência e tremulação: eventos encontrados pelo aparelho segundo os seus limiares. O veredicto não se baseia neles.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>No que foi avaliado, a alimentação cumpre %1.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>cada um dos seus intervalos está incompleto ou tem uma interrupção</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Indicativo, menos de uma semana (%2): a alimentação não respeitou os limites de %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Indicativo, menos de uma semana (%2): no que foi avaliado, a alimentação respeitou os limites de %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Indicativo, menos de uma semana (%2): a alimentação respeitou os limites de %1.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 foi avaliado em apenas %2 do tempo.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>A última dura apenas %1.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>Eventos :</translation>
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
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>Estado do sistema:

Registador: %1
Total de eventos: %2
Cavas: %3;   Sobretensões: %4;   Interrupções: %5;   Transitórios: %6;   Arranques: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>em execução</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>parado</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Ecrã </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Dados </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: editar o nome</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>O ficheiro &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; já existe.
Deseja substituí-lo?</translation>
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
        <translation>Predefin.</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Pinça</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>Relação I :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>Relação U :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Canal :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fases</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutro</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Pinça :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Sensibilidade :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Escala I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexível :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>numerador</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>denominador</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Pinça não editável!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Eliminar a pinça?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>A pinça já existe!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>LIGAÇÃO</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>LIGAÇÃO</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Página 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Página 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Página 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Predefin.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Curva de ponderação Plt</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Funções</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Harmónicas</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Flicker</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transitórios</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Corr. de arranque</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Sinais na rede</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Corr. de arranque</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Corrente nominal</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histerese</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Harmónicas</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>Método do fator K:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>Fator K, par. e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>Fator K, par. q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>integrado</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>em uso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Nome vazio!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Nome inválido!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Já existe. Substituir?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Nome dos novos limites</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Nome dos limites</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Eliminar os limites?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: valores</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Ligação</translation>
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
        <translation>Pinça</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Pág. seguinte</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Medição</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funções</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Pág. anterior</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Medição</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Sinais na rede</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Frequência do sinal 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Limiar de deteção 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Frequência do sinal 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Limiar de deteção 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Ligação:</translation>
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
        <translation>Limites:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fases</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutro</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinça</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>Relação I</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>Relação U</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>Escala I</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transitórios</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Tensão nominal</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Tensão simples</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Tensão composta</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Livre: Cima e Baixo alteram o valor</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Livre: %1</translation>
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
        <translation>Lig.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desl.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TUDO</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Linha</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selec.</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>Imediato</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>Programado</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuto</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Nada é guardado:
memória cheia</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefin.</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transitórios</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predefin.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>DISPARO:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
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
        <translation>Homop.</translation>
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
        <translation>Vetores</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
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
        <translation>Qualidade de energia</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Fuso horário:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>CONFIGURAÇÃO LAN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>Usar DHCP</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Estático</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>Configuração IP</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>IP em uso:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualização</translation>
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
        <translation>Atualização em curso. Não operar!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Insira uma pen USB...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Ficheiro não encontrado...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Atualização do software concluída...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Erro na atualização do software...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Erro desconhecido...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Soma de verificação do firmware correta.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Falha na atualização do firmware.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Atualização do firmware concluída...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Código de erro: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Tempo esgotado</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Tempo esgotado</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONHECIDO</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Ligar a</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
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
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>A ligar</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>A procurar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Desativar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>protegida</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>sem redes</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilizador</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data e hora</translation>
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
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Tempo de espera</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Cores das fases</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nome do utilizador</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>DESL.</translation>
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
        <translation>Tendência</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Reter</translation>
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
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Entrada inválida!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Amostragem:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duração:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Tempo restante:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>A captura aguarda o início.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>A captura está em curso.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>A captura terminou.
Os dados estão na memória.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>A memória não aceita mais dados.
O que foi captado está na memória.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>A captura terminou
antes de ter dados.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Deseja parar
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> o registo atual?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duração:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Amostragem:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memória disponível:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Não há espaço para uma captura.
Elimine ficheiros na memória.</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Ligar a</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Palavra-passe:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(guardada)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Entrada inválida!</translation>
    </message>
</context>
</TS>
