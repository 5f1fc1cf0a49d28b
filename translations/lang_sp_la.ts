<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_MX">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>¿Apagar el equipo?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>¡El registrador está en marcha!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Guardar: guarda los datos.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Salir: borra los datos y sale.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Reiniciar: borra los datos y reinicia el registrador.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>La tarea &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; está en curso.
¿Desea salir?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Volts/Amperes/Hertz</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Sags y swells</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armónicos</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Potencia y energía</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desbalance</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transitorios</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Corr. de arranque</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registrador</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Osciloscopio</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Señales en la red</translation>
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
        <translation>Calibración</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Calibración</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>Cero:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>Tensión:</translation>
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
        <translation>Corriente:</translation>
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
        <translation>Calibrando el cero ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Calibrando tensión 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Calibrando tensión 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Calibrando tensión 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Calibrando tensión 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Calibrando corriente 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Calibrando corriente 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Calibrando corriente 65mV/kA ...</translation>
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
        <translation>Siguiente</translation>
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
        <translation>¡Listo!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>La calibración está en curso, 
¿desea salir?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Editor de pinza</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nombre :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Relación :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Rango I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexible :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Nombre de la pinza</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Relación (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>Rango I (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>¡Nombre vacío!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>¡Nombre no válido!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>FECHA</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>NIVEL</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>DURACIÓN</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Copiando archivos</translation>
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
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Subir nivel</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
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
        <translation>FECHA</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPCIÓN</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>sin archivos</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>Atrás</translation>
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
        <translation>Retener</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Armónicos</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>Por defecto</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Corriente nominal</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histéresis</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Conmutación</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>InstrumentInfo</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
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
        <translation>El registro %1 se interrumpió el %2</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>El registro %1, previsto para %2,
se perdió al faltar la alimentación.</translation>
    </message>
</context>
<context>
    <name>LimitDraft</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Armónicos: tiempo en límites</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Armónicos: límite para este tiempo</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Armónicos: límite para todo el tiempo</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
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
        <translation>Tiempo en límites</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Límite superior</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Superior, siempre</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Límite inferior</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Inferior, siempre</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histéresis</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Número permitido</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armónicos</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Sags</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Swells</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Interrupciones</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Tiempo estable</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Salto mínimo</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Tasa mínima</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desbalance</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Señales en la red</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Frecuencia 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Frecuencia 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, tiempo</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, límite</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, siempre</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, tiempo</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, límite</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, siempre</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Negativa, tiempo</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Negativa, límite</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Negativa, siempre</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Cero, tiempo</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Cero, límite</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Cero, siempre</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Tiempo 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Límite 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Siempre 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Tiempo 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Límite 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Siempre 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lámpara</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>lámpara</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Marcha</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Parámetros</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Registrador</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frec =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
    </message>
    <message>
        <source>Sig 1(%)</source>
        <translation>Señ 1(%)</translation>
    </message>
    <message>
        <source>Sig 1(%1)</source>
        <translation>Señ 1(%1)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Señ 2(%)</translation>
    </message>
    <message>
        <source>Sig 2(%1)</source>
        <translation>Señ 2(%1)</translation>
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
        <translation>Señ 1(%)</translation>
    </message>
    <message>
        <source>Sig 2(%)</source>
        <translation>Señ 2(%)</translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Formatear</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>A USB</translation>
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
        <translation>Atrás</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Sel. todo</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Ninguno</translation>
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
        <translation>Libre:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>La medición en curso usa el archivo.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Hay un registro en curso.
Primero debe terminar.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>Se formateará la memoria, 
¿continuar?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Eliminando...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>¡¡¡Error!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>¿Eliminar el archivo?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>¡Error! Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Inserte una memoria USB...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>¿Copiar los archivos?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>El archivo ya existe,
¿reemplazarlo?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Espacio insuficiente en el dispositivo extraíble.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Presione F1-F5 para mostrar más información</translation>
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
        <translation>Sags y swells
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Armónicos
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Potencia y energía
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
        <translation>Desbalance
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transitorios
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Usuario
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
        <translation>Señales
en la red</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Registrador
</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
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
        <translation>Guardar y salir</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Descart. y salir</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
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
        <translation>Sí a todos</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>No a todos</translation>
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
        <translation>Atrás</translation>
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
        <translation>Armón.</translation>
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
        <translation>Señ.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Deseq., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marcha</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminado</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>Dentro de límites</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Límite superado</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armónicos</translation>
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
        <translation>Duración</translation>
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
        <translation>Límites</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nombre de archivo:</translation>
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
        <translation>Límite</translation>
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
        <translation>Armónicos</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Peor</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Sags</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Swells</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Interr.</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desbalance</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Neg.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Señales en la red</translation>
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
        <translation>Desequilibrio(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Frec(Hz)</translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Por defecto</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Colores de fase</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Tierra</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frec =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>U sal</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I sal</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P sal</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Eficiencia</translation>
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
        <translation>U sal</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I ent</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I sal</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Eficiencia %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P sal</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>Restablecer</translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>PROPIO</translation>
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
        <translation>Potencia</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U armónicos</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I armónicos</translation>
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
        <translation>Señales</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Frecuencia</translation>
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
        <translation>Desbalance</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms ángulo) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms ángulo) 51-100</translation>
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
        <translation>Señales en la red</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Registrador</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Leyendo...</translation>
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
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
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
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervalo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memoria disponible:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>No hay espacio para un registro.
Borre archivos en la memoria.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Un registro comienza con 50 MB libres.
Borre archivos en la memoria.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervalo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memoria disponible:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>El registrador espera el inicio.
Las otras páginas muestran los datos en tiempo real y los detalles.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>El registrador está en marcha.
Las otras páginas muestran los datos en tiempo real y los detalles.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>El registro ha terminado.
Los datos están en la memoria.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Registrador</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Guardar: guarda los datos.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Salir: borra los datos y sale.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Reiniciar: borra los datos y reinicia el registrador.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>La memoria no admite más datos.
Borre archivos en la memoria.</translation>
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
        <translation>Valores de semiciclo de las corrientes</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Valores de semiciclo de las tensiones</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Forma de onda de las corrientes</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Forma de onda de las tensiones</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Armónicas de tensión y sus límites</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Tensión residual y duración de huecos, sobretensiones e interrupciones</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Interrupción</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Sobretensión</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Hueco</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Tendencias</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Valor mínimo y máximo de cada momento; límites en línea discontinua.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Armónicos</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Alcanzado en la proporción de tiempo, porcentaje de la fundamental</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
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
        <translation>No se registró ningún evento.</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Del nominal</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>continúa</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Terminado antes del inicio del registro: hallado por la medición en curso y no contado en el veredicto.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Otros eventos no incluidos: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Peores momentos</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Transitorio</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Equipo y ajustes</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
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
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Tensión nominal</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Frecuencia nominal</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Relación</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Juego de límites</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Los límites son los del juego elegido para este informe. El registro no indica qué juego usaba el equipo.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Faltante y no evaluado</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>No se pudo evaluar %1: %2.</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, intervalos sin valor: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Intervalos de diez minutos incompletos: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Nada.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Todas las horas son UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Señal de red %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tensión</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Desbalance</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Desequilibrio, secuencia cero</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Armónica %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Variación rápida de tensión</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Corr. de arranque</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>cumple</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>no cumple</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>no evaluado</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>intervalos de más de diez minutos</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>intervalos de más de tres segundos</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>no se registró</translation>
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
        <translation>Registrador</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Informe de calidad de la energía</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>El suministro no cumple %1.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>El suministro cumple %1.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>No había tensión: no se puede evaluar nada.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>El registro no contiene nada que se pueda evaluar.</translation>
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
        <translation>dañado en el medio</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>ilegible</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
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
        <translation>Magnitud</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Alcanzado</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Peor</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Evaluado</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>El registro dura menos de una semana. Los límites valen para semanas: el resultado es orientativo.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Semanas evaluadas por separado: %1. La tabla muestra la peor.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>El registro no está completo. Se evaluó lo que se pudo leer.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Alcanzado: hasta ahí llegan los valores en la proporción de tiempo que pide el límite. Dentro: la proporción que lo cumple. Evaluado: la parte del registro que tiene valores.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Intervalos de diez minutos con interrupción, no evaluados: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Intervalos de diez minutos con hueco o sobretensión, marcados y evaluados como los demás: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Sin ellos el resultado sería otro.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Sin ellos el resultado es el mismo.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>La norma exige la frecuencia en el 99,5 % de un año; el juego de límites evalúa semanas.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Equipo, tensión y frecuencia: compara cien veces la desviación en V o Hz con el límite en por ciento, y basta un valor dentro. De ahí el otro resultado.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Equipo, armónicas: basta un valor que no esté por debajo del límite para no cumplir, sea cual sea la proporción. De ahí el otro resultado.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Equipo, desequilibrio y flicker: basta un valor por debajo del límite. De ahí el otro resultado.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>se desconoce el valor nominal</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Tensión, armónicos, desequilibrio, frecuencia y flicker: eventos hallados por el equipo según sus propios umbrales. El veredicto no se basa en ellos.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>En lo evaluado, el suministro cumple %1.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>cada uno de sus intervalos está incompleto o tiene una interrupción</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Orientativo, menos de una semana (%2): el suministro no respetó los límites de %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Orientativo, menos de una semana (%2): en lo evaluado, el suministro respetó los límites de %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Orientativo, menos de una semana (%2): el suministro respetó los límites de %1.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 se evaluó solo durante el %2 del tiempo.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>La última dura solo %1.</translation>
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
        <translation>Estado del sistema:

Registrador: %1
Total de eventos: %2
Sags: %3;   Swells: %4;   Interrupciones: %5;   Transitorios: %6;   Arranques: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>en marcha</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>detenido</translation>
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
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Pantalla </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Datos </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: editar el nombre</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>El archivo &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; ya existe.
¿Desea sobrescribirlo?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>Frec =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Por defecto</translation>
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
        <translation>Agregar</translation>
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>Relación I :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>Relación U :</translation>
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
        <translation>Pinza :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Sensibilidad :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Rango I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexible :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
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
        <translation>¡Pinza no editable!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>¿Eliminar la pinza?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>¡La pinza ya existe!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>CONEXIÓN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
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
        <translation>CONEXIÓN</translation>
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
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Por defecto</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
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
        <translation>Curva de ponderación Plt</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Armónicos</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Flicker</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transitorios</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Corr. de arranque</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Señales en la red</translation>
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
        <translation>Duración</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Corriente nominal</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histéresis</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Armónicos</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>Método factor K:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>Factor K, par. e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>Factor K, par. q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Agregar</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
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
        <translation>en uso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>¡Nombre vacío!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>¡Nombre no válido!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Ya existe. ¿Sobrescribir?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Nombre de los nuevos límites</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Nombre de los límites</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>¿Eliminar los límites?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
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
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Unom</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Frec</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pinza</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Página sig.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Medición</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Página ant.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Medición</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Señales en la red</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Frecuencia de señal 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Umbral de detección 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Frecuencia de señal 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Umbral de detección 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Conexión:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Unom:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Frec:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Límites:</translation>
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
        <translation>Pinza</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>Relación I</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>Relación U</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>Rango I</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transitorios</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Tensión nominal</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Tensión de fase</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Tensión de línea</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Propio: Arriba y Abajo cambian el valor</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Propio: %1</translation>
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
        <translation>Sí</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TODO</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>INTERARM.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energía</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Selecc.</translation>
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
        <translation>Inmediato</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>Programado</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
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
        <translation>No se guarda nada:
memoria llena</translation>
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
        <translation>Por defecto</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transitorios</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Por defecto</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
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
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>Frec =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>Neg.</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Cero</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frec =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Fasores</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>Calidad de energía</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Zona horaria:</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Puerta de enlace:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>CONFIGURACIÓN LAN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
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
        <translation>Estática</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>Configuración IP</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>IP en uso:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
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
        <translation>Actualización en curso. ¡¡¡No tocar!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Inserte una memoria USB...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Archivo no encontrado...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Actualización de software completa...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Error al actualizar el software...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Error desconocido...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Suma de control del firmware correcta.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Fallo al actualizar el firmware.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Actualización de firmware completa...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Código de error: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Tiempo agotado</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Tiempo agotado</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>DESCONOCIDO</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
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
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Puerta de enlace:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>segura</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>sin redes</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Fecha y hora</translation>
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
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Tiempo de espera</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Iluminación</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Colores de fase</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NO</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frec =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Retener</translation>
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
        <translation>Frec(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>¡Entrada no válida!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Muestreo:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Tiempo restante:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>La captura espera el inicio.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>La captura está en curso.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>La captura ha terminado.
Los datos están en la memoria.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>La memoria no admite más datos.
Lo capturado está en la memoria.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>La captura terminó
antes de tener datos.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>¿Desea detener
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> el registro actual?</translation>
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
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Duración:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Muestreo:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nombre de archivo:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Memoria disponible:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>No hay espacio para una captura.
Borre archivos en la memoria.</translation>
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(guardada)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>¡Entrada no válida!</translation>
    </message>
</context>
</TS>
