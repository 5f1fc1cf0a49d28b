<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Éteindre l&apos;appareil ?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>Enregistrement en cours !
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Sauver : enregistrer les données.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Quitter : effacer les données et quitter.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Relancer : effacer les données et relancer l&apos;enregistreur.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>La tâche &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; est en cours.
Voulez-vous l&apos;arrêter ?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Volts/Ampères/Hertz</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Creux &amp; surtensions</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniques</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Puissance/énergie</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Déséquilibre</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transitoires</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Courant d&apos;appel</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forme d&apos;onde</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Signaux réseau</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Onduleur</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Étalonnage</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Étalonnage</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>Zéro :</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>Tension :</translation>
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
        <translation>Courant :</translation>
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
        <translation>Étalonnage du zéro ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Étalonnage tension 120V ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Étalonnage tension 220V ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Étalonnage tension 400V ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Étalonnage tension 600V ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Étalonnage courant 1mV/1A ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Étalonnage courant 10mV/1A ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Étalonnage courant 65mV/kA ...</translation>
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
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sauver</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>OK !</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>L&apos;étalonnage est en cours, 
voulez-vous quitter ?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Éditeur de pince</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Rapport :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Calibre I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexible :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Nom de la pince</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Rapport (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>Calibre I (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Nom vide !</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Nom incorrect !</translation>
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
        <translation>Admis%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>Événem. :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYPE</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>NIVEAU</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>DURÉE</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Copie des fichiers</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Annulé</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Ouvrir dossier</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>TYPE</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>aucun fichier</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>Retour</translation>
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
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Harmoniques</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>Courant d&apos;appel</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Courant nominal</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hystérésis</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Commutation</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>S/N</source>
        <translation>S/N</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
</context>
<context>
    <name>InterruptedNote</name>
    <message>
        <source>Recording %1 was interrupted at %2</source>
        <translation>Enregistrement %1 interrompu le %2</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>L&apos;enregistrement %1, prévu le %2,
a été perdu avec l&apos;alimentation.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Harmoniques : temps dans les limites</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Harmoniques : limite pour ce temps</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Harmoniques : limite pour 100 % du temps</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter : valeurs</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Temps dans limites</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Limite haute</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Haut, toujours</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Limite basse</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Bas, toujours</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hystérésis</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>Nombre admis</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniques</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Creux</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Surtensions</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Coupures</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Temps de stabilité</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>Saut minimal</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>Pente minimale</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Déséquilibre</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Signaux réseau</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Fréquence 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Fréquence 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, temps</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, limite</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, toujours</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, temps</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, limite</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, toujours</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Inverse, temps</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Inverse, limite</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Inverse, toujours</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Homopolaire, temps</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Homopolaire, limite</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Homopolaire, toujours</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Temps 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Limite 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Toujours 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Temps 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Limite 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Toujours 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>lampe</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Marche</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Enregistreur</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>Fréq =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>Type</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Formater</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>Vers USB</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Voir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Tout choisir</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Ne rien choisir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Utilisé :</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Libre :</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>Le fichier est utilisé par la mesure en cours.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Un enregistrement est en cours.
Il doit d&apos;abord se terminer.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>La mémoire de masse va être formatée, 
continuer ?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Suppression...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Erreur !!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Supprimer le fichier ?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Erreur ! Réessayez.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Insérez une clé USB...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Copier les fichiers ?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>Le fichier existe déjà,
le remplacer ?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Espace insuffisant sur le support amovible.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Appuyez sur F1-F5 pour plus d&apos;informations</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>Volts/Ampères/Hertz
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>Creux &amp; surtensions
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Harmoniques
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Puissance/énergie
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
        <translation>Déséquilibre
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transitoires
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Utilisateur
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Courant d&apos;appel
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Forme d&apos;onde
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Signaux
réseau</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Enregistreur
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Sauver/relancer</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Effacer/relancer</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Sauver/quitter</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Effacer/quitter</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Relancer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sauver</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Oui, tous</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Non, aucun</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
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
        <translation>Dés.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>Sig.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Déséq., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>Dans les limites</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Limite dépassée</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Tous évènements</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniques</translation>
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
        <translation>Déséq., Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>RÉGLAGES</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source> d</source>
        <translation> j</translation>
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
        <translation>Nom du fichier :</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>Admis%</translation>
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
        <translation>Harmoniques</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pire</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Creux</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Surtensions</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Coupures</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Déséquilibre</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Inv.</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Signaux réseau</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Déséquilibre(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Fréq(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Couleur des phases</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Terre</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>Fréq =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U entrée</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I entrée</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P entrée</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U sortie</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I sortie</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P sortie</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Rendement</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>Onduleur</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>Monophasé</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>Triphasé</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U entrée</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U sortie</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I entrée</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I sortie</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Rendement %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P sortie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>R. à zéro</translation>
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
        <translation>Type</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>PERSO.</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
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
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Fréquence</translation>
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
        <translation>Déséquilibre</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms angle) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms angle) 51-100</translation>
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
        <translation>Signaux réseau</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Enregistreur</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Lecture...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervalle :</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Mémoire disponible :</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Pas de place pour un enregistrement.
Supprimez des fichiers en mémoire.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Un enregistrement commence avec 50 Mo libres.
Supprimez des fichiers en mémoire.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervalle :</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Mémoire disponible :</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>L&apos;enregistreur attend son départ.
Les autres pages montrent les valeurs en temps réel et les détails.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>Enregistrement en cours.
Les autres pages montrent les valeurs en temps réel et les détails.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>Enregistrement terminé.
Les données sont en mémoire.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Sauver : enregistrer les données.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Quitter : effacer les données et quitter.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Relancer : effacer les données et relancer l&apos;enregistreur.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>La mémoire ne prend plus de données.
Supprimez des fichiers en mémoire.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 j, %2 h</translation>
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
        <translation>Valeurs demi-période des courants</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Valeurs demi-période des tensions</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Forme d&apos;onde des courants</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Forme d&apos;onde des tensions</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Harmoniques de tension et leurs limites</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Tension résiduelle et durée des creux, surtensions et coupures</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Coupure</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Surtension</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Creux</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Tendances</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Valeur la plus basse et la plus haute à chaque instant ; limites en pointillé.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniques</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Atteint dans la part de temps, pour cent du fondamental</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Aucun événement enregistré.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Du nominal</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Terminé avant le début de l&apos;enregistrement : trouvé par la mesure en cours, non compté dans le verdict.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Autres événements non listés : %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>Pires moments</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Transitoire</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Appareil et réglages</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Raccordement</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Tension nominale</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Fréquence nominale</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pince</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Jeu de limites</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Les limites sont celles du jeu choisi pour ce rapport. Un enregistrement n&apos;indique pas le jeu utilisé par l&apos;appareil.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Manquant et non évalué</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>%1 n&apos;a pas pu être évalué : %2.</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, intervalles sans valeur : %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Intervalles de dix minutes incomplets : %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Rien.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Toutes les heures sont en UTC.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Signal secteur %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Déséquilibre</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Déséquilibre, homopolaire</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Flicker</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Harmonique %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Variation rapide de tension</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Courant d&apos;appel</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>conforme</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>non évalué</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sans limite</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>intervalles de plus de dix minutes</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>intervalles de plus de trois secondes</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>non enregistré</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Capture de forme d&apos;onde</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Page enregistrée</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Rapport de qualité de l&apos;énergie</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>L&apos;alimentation n&apos;est pas conforme à %1.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>L&apos;alimentation est conforme à %1.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Aucune tension : rien ne peut être évalué.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>L&apos;enregistrement ne contient rien d&apos;évaluable.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>complet</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>tronqué</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>endommagé au milieu</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>%1 par semaine</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Grandeur</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Atteint</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pire</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dedans</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Évalué</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>L&apos;enregistrement dure moins d&apos;une semaine. Les limites valent pour des semaines : le résultat est indicatif.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Semaines évaluées séparément : %1. Le tableau montre la pire.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>L&apos;enregistrement n&apos;est pas complet. Ce qui était lisible a été évalué.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Atteint : valeur atteinte dans la part de temps exigée par la limite. Dedans : part qui la respecte. Évalué : part de l&apos;enregistrement qui a des valeurs.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Intervalles de dix minutes avec coupure, non évalués : %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Intervalles de dix minutes avec creux ou surtension, marqués et évalués comme les autres : %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Sans eux, le résultat serait différent.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Sans eux, le résultat est le même.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>La norme exige la fréquence pendant 99,5 % d&apos;une année ; le jeu de limites évalue des semaines.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Appareil, tension et fréquence : il compare cent fois l&apos;écart en V ou Hz à la limite en pour cent, et une valeur à l&apos;intérieur suffit. D&apos;où l&apos;autre résultat.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Appareil, harmoniques : une seule valeur non inférieure à la limite suffit à l&apos;échec, quelle que soit la part. D&apos;où l&apos;autre résultat.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Appareil, déséquilibre et flicker : une valeur sous la limite suffit. D&apos;où l&apos;autre résultat.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>valeur nominale inconnue</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Tension, harmoniques, déséquilibre, fréquence et flicker : événements trouvés par l&apos;appareil selon ses propres seuils. Le verdict ne repose pas sur eux.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>Pour ce qui a été évalué, l&apos;alimentation est conforme à %1.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>chacun de ses intervalles est incomplet ou comporte une coupure</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Indication sur moins d&apos;une semaine (%2) : l&apos;alimentation n&apos;a pas respecté les limites de %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Indication sur moins d&apos;une semaine (%2) : pour ce qui a été évalué, l&apos;alimentation a respecté les limites de %1.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Indication sur moins d&apos;une semaine (%2) : l&apos;alimentation a respecté les limites de %1.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 n&apos;a été évalué que pendant %2 du temps.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>La dernière ne dure que %1.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>Événem. :</translation>
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
        <translation>Relancer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>État du système :

Enregistreur : %1
Total des événements : %2
Creux : %3 ;   Surtensions : %4 ;   Coupures : %5 ;   Transitoires : %6 ;   Appels de courant : %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>en marche</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>arrêté</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Sauver</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Écran </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Données </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter : modifier le nom</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>Le fichier &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; existe déjà.
Voulez-vous l&apos;écraser ?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>Fréq =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Pince</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>Rapport I :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>Rapport U :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Voie :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phases</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutre</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Pince :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Sensibilité :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>Calibre I :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Flexible :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>numérateur</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>dénominateur</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Pince non modifiable !</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Supprimer la pince ?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>Cette pince existe déjà !</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>BRANCHEMENT</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>BRANCHEMENT</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Page 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Page 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Page 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Pondération Plt</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Harmoniques</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Flicker</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transitoires</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Courant d&apos;appel</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Signaux réseau</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Courant d&apos;appel</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Courant nominal</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Hystérésis</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Harmoniques</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>Méthode facteur K :</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>Facteur K, par. e :</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>Facteur K, par. q :</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>intégré</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>utilisé</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Nom vide !</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Nom incorrect !</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Existe déjà. L&apos;écraser ?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Nom des nouvelles limites</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Nom des limites</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Supprimer les limites ?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter : valeurs</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Câblage</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Unom</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Fréq</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pince</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Mesure</translation>
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
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Mesure</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Signaux réseau</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Fréquence du signal 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Seuil de détection 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Fréquence du signal 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Seuil de détection 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Câblage :</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Unom :</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Fréq :</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Limites :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phases</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutre</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pince</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>Rapport I</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>Rapport U</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>Calibre I</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transitoires</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Tension nominale</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Tension simple</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Tension composée</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Perso. : Haut et Bas changent la valeur</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Perso. : %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>Curseur</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TOUT</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>INTERHARM.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Énergie</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Sélection</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>Immédiat</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>Programmé</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Rien n&apos;est stocké :
mémoire pleine</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transitoires</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>DÉCLENCH.:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>Fréq =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>Fréq =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vecteurs</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>Qualité du réseau</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Fuseau horaire :</translation>
    </message>
</context>
<context>
    <name>UserLanPage</name>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Masque :</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Passerelle :</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>CONFIGURATION LAN</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>Utiliser DHCP</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statique</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>Configuration IP</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>IP utilisée :</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>Mise à jour en cours. Ne rien toucher !!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>Insérez une clé USB...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Fichier introuvable...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Mise à jour du logiciel terminée...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Erreur de mise à jour du logiciel...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Erreur inconnue...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Somme de contrôle du firmware correcte.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Échec de la mise à jour du firmware.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Mise à jour du firmware terminée...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Code d&apos;erreur : </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Délai dépassé</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Délai dépassé</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>INCONNU</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
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
        <translation>État :</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Masque :</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Passerelle :</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>sécurisé</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>aucun réseau</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date et heure</translation>
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
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Mise en veille</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Éclairage</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Couleur des phases</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NON</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>Fréq =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Figer</translation>
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
        <translation>Fréq(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Saisie incorrecte !</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Échantillonnage :</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Temps restant :</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Forme d&apos;onde</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>La capture attend son départ.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>La capture est en cours.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>La capture est terminée.
Les données sont en mémoire.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>La mémoire n&apos;accepte plus de données.
Ce qui a été capturé est en mémoire.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>La capture a été arrêtée
avant d&apos;avoir des données.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Voulez-vous arrêter
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> l&apos;enregistrement en cours ?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Forme d&apos;onde</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Durée :</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Échantillonnage :</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Nom du fichier :</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Mémoire disponible :</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Pas de place pour une capture.
Supprimez des fichiers en mémoire.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(enregistré)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Saisie incorrecte !</translation>
    </message>
</context>
</TS>
