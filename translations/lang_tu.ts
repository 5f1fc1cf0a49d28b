<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>BaseDialog</name>
    <message>
        <source>Power off?</source>
        <translation>Cihaz kapatılsın mı?</translation>
    </message>
    <message>
        <source>Logger is running!
</source>
        <translation>Kaydedici çalışıyor!
</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Kaydet: verileri kaydeder.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Çıkış: verileri siler ve çıkar.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Yeniden: verileri siler ve kaydediciyi yeniden başlatır.</translation>
    </message>
    <message>
        <source>The task &quot;</source>
        <translation>Görev &quot;</translation>
    </message>
    <message>
        <source>&quot; is running.
do you want to quit?</source>
        <translation>&quot; çalışıyor.
Çıkmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz</source>
        <translation>Volt/Amper/Hertz</translation>
    </message>
    <message>
        <source>Dips&amp;Swells</source>
        <translation>Çukur ve tepe</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>Power&amp;Energy</source>
        <translation>Güç ve enerji</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Dengesizlik</translation>
    </message>
    <message>
        <source>Transients</source>
        <translation>Transiyentler</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Kullanıcı</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Kalkış akımı</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Kaydedici</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitör</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Osiloskop</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Dalga şekli</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Şebeke sinyalleri</translation>
    </message>
    <message>
        <source>Power Inverter</source>
        <translation>Evirici</translation>
    </message>
</context>
<context>
    <name>Calibration</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibrasyon</translation>
    </message>
</context>
<context>
    <name>CalibrationDialog</name>
    <message>
        <source>Calibration</source>
        <translation>Kalibrasyon</translation>
    </message>
    <message>
        <source>Zero:</source>
        <translation>Sıfır:</translation>
    </message>
    <message>
        <source>0V 0A</source>
        <translation>0V 0A</translation>
    </message>
    <message>
        <source>Volt:</source>
        <translation>Gerilim:</translation>
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
        <translation>Akım:</translation>
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
        <translation>Sıfır kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Volt 120V calibrating ...</source>
        <translation>Gerilim 120V kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Volt 220V calibrating ...</source>
        <translation>Gerilim 220V kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Volt 400V calibrating ...</source>
        <translation>Gerilim 400V kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Volt 600V calibrating ...</source>
        <translation>Gerilim 600V kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Current 1mV/1A calibrating ...</source>
        <translation>Akım 1mV/1A kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Current 10mV/1A calibrating ...</source>
        <translation>Akım 10mV/1A kalibre ediliyor ...</translation>
    </message>
    <message>
        <source>Current 65mV/kA calibrating ...</source>
        <translation>Akım 65mV/kA kalibre ediliyor ...</translation>
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
        <translation>İleri</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Ok!</source>
        <translation>Tamam!</translation>
    </message>
    <message>
        <source>The calibration task is running, 
Do you want to exit?</source>
        <translation>Kalibrasyon sürüyor, 
çıkmak istiyor musunuz?</translation>
    </message>
</context>
<context>
    <name>ClampEditor</name>
    <message>
        <source>Clamp Editor</source>
        <translation>Pens düzenleme</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Ad :</translation>
    </message>
    <message>
        <source>Ratio :</source>
        <translation>Oran :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>I aralığı :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Esnek :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Clamp name</source>
        <translation>Pens adı</translation>
    </message>
    <message>
        <source>Ratio (mV/A)</source>
        <translation>Oran (mV/A)</translation>
    </message>
    <message>
        <source>I range (A)</source>
        <translation>I aralığı (A)</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Ad boş!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Geçersiz ad!</translation>
    </message>
</context>
<context>
    <name>ComplianceBars</name>
    <message>
        <source>Limit</source>
        <translation>Sınır</translation>
    </message>
    <message>
        <source>Allowed%</source>
        <translation>İzin%</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>EVENTS :</source>
        <translation>Olaylar :</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>EventsWidget</name>
    <message>
        <source>TIME</source>
        <translation>ZAMAN</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TİP</translation>
    </message>
    <message>
        <source>LEVEL</source>
        <translation>SEVİYE</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>SÜRE</translation>
    </message>
</context>
<context>
    <name>FileCopingProgressBar</name>
    <message>
        <source>Copying files</source>
        <translation>Dosyalar kopyalanıyor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>İptal edildi</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>Open file</source>
        <translation>Dosya aç</translation>
    </message>
    <message>
        <source>Open Dir</source>
        <translation>Klasör aç</translation>
    </message>
    <message>
        <source>Fold Dir</source>
        <translation>Üst klasör</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>FilesList</name>
    <message>
        <source>TYPE</source>
        <translation>TİP</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>ZAMAN</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>AÇIKLAMA</translation>
    </message>
    <message>
        <source>no files</source>
        <translation>dosya yok</translation>
    </message>
</context>
<context>
    <name>FlickerMain</name>
    <message>
        <source>Trend</source>
        <translation>Eğilim</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Geri</translation>
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
        <translation>Değerler</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
    </message>
</context>
<context>
    <name>HarmMeterPage</name>
    <message>
        <source>Harmonic</source>
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Kalkış akımı</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Anma akımı</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Eşik</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histerezis</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Anahtar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
</context>
<context>
    <name>InstrumentInfo</name>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
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
        <translation>%1 kaydı %2 tarihinde kesildi</translation>
    </message>
    <message>
        <source>Recording %1, planned for %2,
was lost with the supply.</source>
        <translation>%2 için planlanan %1 kaydı
besleme kesilince iptal oldu.</translation>
    </message>
</context>
<context>
    <name>LimitDraft</name>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>LimitHarmPage</name>
    <message>
        <source>Harmonics: time in limits</source>
        <translation>Harmonikler: sınır içi süre</translation>
    </message>
    <message>
        <source>Harmonics: limit for this time</source>
        <translation>Harmonikler: bu süre için sınır</translation>
    </message>
    <message>
        <source>Harmonics: limit for all the time</source>
        <translation>Harmonikler: tüm süre için sınır</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Sütun</translation>
    </message>
</context>
<context>
    <name>LimitItemsPage</name>
    <message>
        <source>Enter: values</source>
        <translation>Enter: değerler</translation>
    </message>
</context>
<context>
    <name>LimitValuePage</name>
    <message>
        <source>Time in limits</source>
        <translation>Sınır içi süre</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Üst sınır</translation>
    </message>
    <message>
        <source>Upper, always</source>
        <translation>Üst, her zaman</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Alt sınır</translation>
    </message>
    <message>
        <source>Lower, always</source>
        <translation>Alt, her zaman</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Eşik</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histerezis</translation>
    </message>
    <message>
        <source>Allowed number</source>
        <translation>İzin verilen sayı</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Gerilim</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Çukurlar</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Tepeler</translation>
    </message>
    <message>
        <source>Interruptions</source>
        <translation>Kesintiler</translation>
    </message>
    <message>
        <source>RVC</source>
        <translation>RVC</translation>
    </message>
    <message>
        <source>Steady time</source>
        <translation>Kararlılık süresi</translation>
    </message>
    <message>
        <source>Minimum step</source>
        <translation>En az sıçrama</translation>
    </message>
    <message>
        <source>Minimum rate</source>
        <translation>En az değişim hızı</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Dengesizlik</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekans</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Şebeke sinyalleri</translation>
    </message>
    <message>
        <source>Frequency 1</source>
        <translation>Frekans 1</translation>
    </message>
    <message>
        <source>Frequency 2</source>
        <translation>Frekans 2</translation>
    </message>
    <message>
        <source>Plt, time</source>
        <translation>Plt, süre</translation>
    </message>
    <message>
        <source>Plt, limit</source>
        <translation>Plt, sınır</translation>
    </message>
    <message>
        <source>Plt, always</source>
        <translation>Plt, her zaman</translation>
    </message>
    <message>
        <source>Pst, time</source>
        <translation>Pst, süre</translation>
    </message>
    <message>
        <source>Pst, limit</source>
        <translation>Pst, sınır</translation>
    </message>
    <message>
        <source>Pst, always</source>
        <translation>Pst, her zaman</translation>
    </message>
    <message>
        <source>Negative, time</source>
        <translation>Negatif, süre</translation>
    </message>
    <message>
        <source>Negative, limit</source>
        <translation>Negatif, sınır</translation>
    </message>
    <message>
        <source>Negative, always</source>
        <translation>Negatif, her zaman</translation>
    </message>
    <message>
        <source>Zero, time</source>
        <translation>Sıfır, süre</translation>
    </message>
    <message>
        <source>Zero, limit</source>
        <translation>Sıfır, sınır</translation>
    </message>
    <message>
        <source>Zero, always</source>
        <translation>Sıfır, her zaman</translation>
    </message>
    <message>
        <source>Time 1</source>
        <translation>Süre 1</translation>
    </message>
    <message>
        <source>Limit 1</source>
        <translation>Sınır 1</translation>
    </message>
    <message>
        <source>Always 1</source>
        <translation>Her zaman 1</translation>
    </message>
    <message>
        <source>Time 2</source>
        <translation>Süre 2</translation>
    </message>
    <message>
        <source>Limit 2</source>
        <translation>Sınır 2</translation>
    </message>
    <message>
        <source>Always 2</source>
        <translation>Her zaman 2</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lamba</translation>
    </message>
    <message>
        <source>lamp</source>
        <translation>lamba</translation>
    </message>
</context>
<context>
    <name>LivePage</name>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Çalıştır</translation>
    </message>
</context>
<context>
    <name>LoggerParamPage</name>
    <message>
        <source>Params</source>
        <translation>Parametreler</translation>
    </message>
</context>
<context>
    <name>LoggerSetup</name>
    <message>
        <source>Logger</source>
        <translation>Kaydedici</translation>
    </message>
</context>
<context>
    <name>MainsSignalingMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frek =</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Eğilim</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Tip</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Format</source>
        <translation>Biçimlendir</translation>
    </message>
    <message>
        <source>To USB</source>
        <translation>USB&apos;ye</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>SelectAll</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>SelectNone</source>
        <translation>Seçimi kaldır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>Dolu:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>Boş:</translation>
    </message>
    <message>
        <source>The file is in use by the running measurement.</source>
        <translation>Dosya süren ölçüm tarafından kullanılıyor.</translation>
    </message>
    <message>
        <source>A recording is running.
It has to end first.</source>
        <translation>Bir kayıt sürüyor.
Önce bitmesi gerekir.</translation>
    </message>
    <message>
        <source>It will format the mass storage, 
Do you continue?</source>
        <translation>Bellek biçimlendirilecek, 
devam edilsin mi?</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>Siliniyor...</translation>
    </message>
    <message>
        <source>Error!!!</source>
        <translation>Hata!!!</translation>
    </message>
    <message>
        <source>Delete the file?</source>
        <translation>Dosya silinsin mi?</translation>
    </message>
    <message>
        <source>Error! Try egain.</source>
        <translation>Hata! Yeniden deneyin.</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>USB bellek takın...</translation>
    </message>
    <message>
        <source>Copy the files?</source>
        <translation>Dosyalar kopyalansın mı?</translation>
    </message>
    <message>
        <source>File already exists,
Replace the file?</source>
        <translation>Dosya zaten var,
değiştirilsin mi?</translation>
    </message>
    <message>
        <source>Insufficient storage space in Removable Storage Device.</source>
        <translation>Çıkarılabilir bellekte yeterli yer yok.</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Press F1-F5 to show more infomation</source>
        <translation>Daha fazla bilgi için F1-F5&apos;e basın</translation>
    </message>
    <message>
        <source>Volts/Amps/Hertz
</source>
        <translation>Volt/Amper/Hertz
</translation>
    </message>
    <message>
        <source>Dips&amp;Swells
</source>
        <translation>Çukur ve tepe
</translation>
    </message>
    <message>
        <source>Harmonics
</source>
        <translation>Harmonikler
</translation>
    </message>
    <message>
        <source>Power&amp;Energy
</source>
        <translation>Güç ve enerji
</translation>
    </message>
    <message>
        <source>Flicker
</source>
        <translation>Kırpışma
</translation>
    </message>
    <message>
        <source>Unbalance
</source>
        <translation>Dengesizlik
</translation>
    </message>
    <message>
        <source>Transients
</source>
        <translation>Transiyentler
</translation>
    </message>
    <message>
        <source>User
</source>
        <translation>Kullanıcı
</translation>
    </message>
    <message>
        <source>Inrush
</source>
        <translation>Kalkış akımı
</translation>
    </message>
    <message>
        <source>Wave
</source>
        <translation>Dalga şekli
</translation>
    </message>
    <message>
        <source>Mains
Signaling</source>
        <translation>Şebeke
sinyalleri</translation>
    </message>
    <message>
        <source>Logger
</source>
        <translation>Kaydedici
</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Save &amp; Restart</source>
        <translation>Kaydet/yeniden</translation>
    </message>
    <message>
        <source>Discard &amp; Restart</source>
        <translation>Sil/yeniden</translation>
    </message>
    <message>
        <source>Save &amp; Exit</source>
        <translation>Kaydet ve çık</translation>
    </message>
    <message>
        <source>Discard &amp; Exit</source>
        <translation>Sil ve çık</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Yeniden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Tümüne evet</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>Tümüne hayır</translation>
    </message>
</context>
<context>
    <name>MonitStarHarmPage</name>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
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
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unb.</source>
        <translation>Deng.</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Sig.</source>
        <translation>Siny.</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Dengesiz., Hz</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekliyor</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Çalışıyor</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Bitti</translation>
    </message>
</context>
<context>
    <name>MonitorBarsPage</name>
    <message>
        <source>Within the limits</source>
        <translation>Sınırlar içinde</translation>
    </message>
    <message>
        <source>Limit exceeded</source>
        <translation>Sınır aşıldı</translation>
    </message>
</context>
<context>
    <name>MonitorEventPage</name>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Eğilim</translation>
    </message>
    <message>
        <source>Vrms</source>
        <translation>Vrms</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>DIRS</source>
        <translation>DIRS</translation>
    </message>
    <message>
        <source>Unbal., Hz</source>
        <translation>Dengesiz., Hz</translation>
    </message>
</context>
<context>
    <name>MonitorMain</name>
    <message>
        <source>SETUP</source>
        <translation>AYAR</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source> d</source>
        <translation> g</translation>
    </message>
    <message>
        <source> h</source>
        <translation> sa</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Sınırlar</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dosya adı:</translation>
    </message>
</context>
<context>
    <name>MonitorReadout</name>
    <message>
        <source>Allowed%</source>
        <translation>İzin%</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Sınır</translation>
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
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>En kötü</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>Dips</source>
        <translation>Çukurlar</translation>
    </message>
    <message>
        <source>Swells</source>
        <translation>Tepeler</translation>
    </message>
    <message>
        <source>Interr.</source>
        <translation>Kesinti</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Dengesizlik</translation>
    </message>
    <message>
        <source>Neg.</source>
        <translation>Negatif</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekans</translation>
    </message>
    <message>
        <source>Mains Signaling</source>
        <translation>Şebeke sinyalleri</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
</context>
<context>
    <name>MonitorTrendPage</name>
    <message>
        <source>Unbalance(%)</source>
        <translation>Dengesizlik(%)</translation>
    </message>
    <message>
        <source>Freq(Hz)</source>
        <translation>Frek(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Yakınlaş</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>PhaseColorDialog</name>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Faz renkleri</translation>
    </message>
    <message>
        <source>Earth</source>
        <translation>Toprak</translation>
    </message>
</context>
<context>
    <name>PowerInverterMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frek =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Eğilim</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
    </message>
    <message>
        <source>U in</source>
        <translation>U giriş</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I giriş</translation>
    </message>
    <message>
        <source>P in</source>
        <translation>P giriş</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U çıkış</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I çıkış</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P çıkış</translation>
    </message>
    <message>
        <source>Efficiency</source>
        <translation>Verim</translation>
    </message>
</context>
<context>
    <name>PowerInverterSetup</name>
    <message>
        <source>Power Inverter</source>
        <translation>Evirici</translation>
    </message>
    <message>
        <source>1-Phase</source>
        <translation>1 fazlı</translation>
    </message>
    <message>
        <source>3-Phase</source>
        <translation>3 fazlı</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
</context>
<context>
    <name>PowerInverterTrend</name>
    <message>
        <source>U in</source>
        <translation>U giriş</translation>
    </message>
    <message>
        <source>U out</source>
        <translation>U çıkış</translation>
    </message>
    <message>
        <source>I in</source>
        <translation>I giriş</translation>
    </message>
    <message>
        <source>I out</source>
        <translation>I çıkış</translation>
    </message>
    <message>
        <source>Efficiency %</source>
        <translation>Verim %</translation>
    </message>
    <message>
        <source>P out</source>
        <translation>P çıkış</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>PowerMain</name>
    <message>
        <source>Trend</source>
        <translation>Eğilim</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
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
        <translation>Tip</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>RatioChoice</name>
    <message>
        <source>CUSTOM</source>
        <translation>ÖZEL</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Param</name>
    <message>
        <source>Values</source>
        <translation>Değerler</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Güç</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kalite</translation>
    </message>
    <message>
        <source>U Harmonics</source>
        <translation>U harmonik</translation>
    </message>
    <message>
        <source>I Harmonics</source>
        <translation>I harmonik</translation>
    </message>
    <message>
        <source>U Interharm.</source>
        <translation>U araharm.</translation>
    </message>
    <message>
        <source>I Interharm.</source>
        <translation>I araharm.</translation>
    </message>
    <message>
        <source>Signaling</source>
        <translation>Sinyal</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parametreler</translation>
    </message>
    <message>
        <source>Urms Irms CF THD</source>
        <translation>Urms Irms CF THD</translation>
    </message>
    <message>
        <source>Frequence</source>
        <translation>Frekans</translation>
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
        <translation>Dengesizlik</translation>
    </message>
    <message>
        <source>(rms angle) 1-50</source>
        <translation>(rms açı) 1-50</translation>
    </message>
    <message>
        <source>(rms angle) 51-100</source>
        <translation>(rms açı) 51-100</translation>
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
        <translation>Şebeke sinyalleri</translation>
    </message>
</context>
<context>
    <name>RecordPqa2Setup</name>
    <message>
        <source>Logger</source>
        <translation>Kaydedici</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>Okunuyor...</translation>
    </message>
</context>
<context>
    <name>RecordingParam</name>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Ters çevir</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>RecordingSetup</name>
    <message>
        <source>File name:</source>
        <translation>Dosya adı:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Süre:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Aralık:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Boş bellek:</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>Params</source>
        <translation>Parametreler</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>There is no room for a recording.
Delete files in Memory.</source>
        <translation>Kayıt için yer yok.
Bellekten dosya silin.</translation>
    </message>
    <message>
        <source>A recording begins with 50 MB free.
Delete files in Memory.</source>
        <translation>Kayıt 50 MB boş yerle başlar.
Bellekten dosya silin.</translation>
    </message>
</context>
<context>
    <name>RecordingStart</name>
    <message>
        <source>File name:</source>
        <translation>Dosya adı:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Süre:</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Aralık:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Boş bellek:</translation>
    </message>
    <message>
        <source>Logger waits for its start.
Swith to other page to see real time data and details.</source>
        <translation>Kaydedici başlangıcı bekliyor.
Anlık veriler ve ayrıntılar diğer sayfalardadır.</translation>
    </message>
    <message>
        <source>Logger is running.
Swith to other page to see real time data and details.</source>
        <translation>Kaydedici çalışıyor.
Anlık veriler ve ayrıntılar diğer sayfalardadır.</translation>
    </message>
    <message>
        <source>Logger has ended.
Its data stands in Memory.</source>
        <translation>Kayıt sona erdi.
Veriler bellekte.</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Kaydedici</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Save: save the data.
</source>
        <translation>Kaydet: verileri kaydeder.
</translation>
    </message>
    <message>
        <source>Exit: delete the data and exit.
</source>
        <translation>Çıkış: verileri siler ve çıkar.
</translation>
    </message>
    <message>
        <source>Restart: delete the data and restart logger.</source>
        <translation>Yeniden: verileri siler ve kaydediciyi yeniden başlatır.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
Delete files in Memory.</source>
        <translation>Bellek artık veri almıyor.
Bellekten dosya silin.</translation>
    </message>
</context>
<context>
    <name>RecordingText</name>
    <message>
        <source> %1 d, %2 hr</source>
        <translation> %1 g, %2 sa</translation>
    </message>
    <message>
        <source>%1 hr</source>
        <translation>%1 sa</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 dk</translation>
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
        <translation>Akımların yarım periyot değerleri</translation>
    </message>
    <message>
        <source>Half-cycle values of the voltages</source>
        <translation>Gerilimlerin yarım periyot değerleri</translation>
    </message>
    <message>
        <source>Waveform of the currents</source>
        <translation>Akımların dalga şekli</translation>
    </message>
    <message>
        <source>Waveform of the voltages</source>
        <translation>Gerilimlerin dalga şekli</translation>
    </message>
    <message>
        <source>Harmonics of the voltage and their limits</source>
        <translation>Gerilim harmonikleri ve sınırları</translation>
    </message>
    <message>
        <source>Voltage left and duration of dips, swells and interruptions</source>
        <translation>Çukur, tepe ve kesintilerin kalan gerilimi ve süresi</translation>
    </message>
    <message>
        <source>Interruption</source>
        <translation>Kesinti</translation>
    </message>
    <message>
        <source>Swell</source>
        <translation>Tepe</translation>
    </message>
    <message>
        <source>Dip</source>
        <translation>Çukur</translation>
    </message>
    <message>
        <source>Trends</source>
        <translation>Eğilimler</translation>
    </message>
    <message>
        <source>Lowest and highest value of each moment; limits are dashed.</source>
        <translation>Her anın en düşük ve en yüksek değeri; sınırlar kesikli.</translation>
    </message>
    <message>
        <source>Harmonics</source>
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>Reached in the share of time, percent of the fundamental</source>
        <translation>Zaman oranında ulaşılan, temel bileşenin yüzdesi</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Derece</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Sınır</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Sonuç</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>No event was recorded.</source>
        <translation>Olay kaydedilmedi.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Olay</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Faz</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Of nominal</source>
        <translation>Nominale göre</translation>
    </message>
    <message>
        <source>goes on</source>
        <translation>sürüyor</translation>
    </message>
    <message>
        <source>Over before the recording began: found by the running measurement, and not counted in the verdict.</source>
        <translation>Kayıt başlamadan önce bitti: süren ölçüm tarafından bulundu ve kararda sayılmadı.</translation>
    </message>
    <message>
        <source>Further events, not listed: %1.</source>
        <translation>Listelenmeyen diğer olaylar: %1.</translation>
    </message>
    <message>
        <source>Worst moments</source>
        <translation>En kötü anlar</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>Geçici olay</translation>
    </message>
    <message>
        <source>Instrument and settings</source>
        <translation>Cihaz ve ayarlar</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seri numarası</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Yazılım</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Donanım yazılımı</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Nominal voltage</source>
        <translation>Nominal gerilim</translation>
    </message>
    <message>
        <source>Nominal frequency</source>
        <translation>Nominal frekans</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pens</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Oran</translation>
    </message>
    <message>
        <source>Limit set</source>
        <translation>Sınır seti</translation>
    </message>
    <message>
        <source>The limits are those of the set chosen for this report. A recording does not say which set was in use on the instrument.</source>
        <translation>Sınırlar bu rapor için seçilen setinkilerdir. Kayıt, cihazda hangi setin kullanıldığını söylemez.</translation>
    </message>
    <message>
        <source>Missing and not judged</source>
        <translation>Eksik ve değerlendirilmeyen</translation>
    </message>
    <message>
        <source>%1 could not be judged: %2.</source>
        <translation>%1 değerlendirilemedi: %2.</translation>
    </message>
    <message>
        <source>%1, intervals without a value: %2.</source>
        <translation>%1, değersiz aralıklar: %2.</translation>
    </message>
    <message>
        <source>Incomplete ten minutes: %1.</source>
        <translation>Eksik on dakikalık aralıklar: %1.</translation>
    </message>
    <message>
        <source>Nothing.</source>
        <translation>Yok.</translation>
    </message>
    <message>
        <source>All times are UTC.</source>
        <translation>Tüm saatler UTC&apos;dir.</translation>
    </message>
    <message>
        <source>Mains signal %1 Hz</source>
        <translation>Şebeke sinyali %1 Hz</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekans</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Gerilim</translation>
    </message>
    <message>
        <source>Unbalance</source>
        <translation>Dengesizlik</translation>
    </message>
    <message>
        <source>Unbalance, zero sequence</source>
        <translation>Dengesizlik, sıfır bileşen</translation>
    </message>
    <message>
        <source>Flicker</source>
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>Harmonic %1</source>
        <translation>Harmonik %1</translation>
    </message>
    <message>
        <source>Rapid voltage change</source>
        <translation>Hızlı gerilim değişimi</translation>
    </message>
    <message>
        <source>Inrush</source>
        <translation>Kalkış akımı</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>geçti</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>kaldı</translation>
    </message>
    <message>
        <source>not judged</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sınır yok</translation>
    </message>
    <message>
        <source>its intervals are longer than ten minutes</source>
        <translation>aralıklar on dakikadan uzun</translation>
    </message>
    <message>
        <source>its intervals are longer than three seconds</source>
        <translation>aralıklar üç saniyeden uzun</translation>
    </message>
    <message>
        <source>it was not recorded</source>
        <translation>kaydedilmedi</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitör</translation>
    </message>
    <message>
        <source>Waveform capture</source>
        <translation>Dalga şekli kaydı</translation>
    </message>
    <message>
        <source>Saved page</source>
        <translation>Kayıtlı sayfa</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Kaydedici</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Kayıt</translation>
    </message>
    <message>
        <source>Power quality report</source>
        <translation>Güç kalitesi raporu</translation>
    </message>
    <message>
        <source>The supply does not comply with %1.</source>
        <translation>Besleme %1 ile uyumlu değil.</translation>
    </message>
    <message>
        <source>The supply complies with %1.</source>
        <translation>Besleme %1 ile uyumlu.</translation>
    </message>
    <message>
        <source>There was no voltage: nothing can be judged.</source>
        <translation>Gerilim yoktu: değerlendirilecek bir şey yok.</translation>
    </message>
    <message>
        <source>The recording holds nothing that can be judged.</source>
        <translation>Kayıtta değerlendirilebilecek bir şey yok.</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>tam</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>kesilmiş</translation>
    </message>
    <message>
        <source>damaged in the middle</source>
        <translation>ortası hasarlı</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>okunamıyor</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>%1 in a week</source>
        <translation>haftada %1</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Karar</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Büyüklük</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Ulaşılan</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>En kötü</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Ne zaman</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>İçinde</translation>
    </message>
    <message>
        <source>Judged</source>
        <translation>Değerl.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Cihaz</translation>
    </message>
    <message>
        <source>The recording is shorter than a week. The limits hold for weeks: the result is an indication.</source>
        <translation>Kayıt bir haftadan kısa. Sınırlar haftalar içindir: sonuç yalnızca göstergedir.</translation>
    </message>
    <message>
        <source>Weeks judged, each by itself: %1. The table shows the worst.</source>
        <translation>Ayrı ayrı değerlendirilen haftalar: %1. Tablo en kötüsünü gösterir.</translation>
    </message>
    <message>
        <source>The recording is not whole. What could be read was judged.</source>
        <translation>Kayıt tam değil. Okunabilen kısım değerlendirildi.</translation>
    </message>
    <message>
        <source>Reached: so far go the values in the share of time that the limit asks for. Within: the share that keeps to it. Judged: the share of the recording that has values.</source>
        <translation>Ulaşılan: sınırın istediği zaman oranında değerlerin vardığı yer. İçinde: sınıra uyan oran. Değerl.: kaydın değeri olan bölümü.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with an interruption, not judged: %1.</source>
        <translation>Kesinti içeren on dakikalık aralıklar, değerlendirilmedi: %1.</translation>
    </message>
    <message>
        <source>Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.</source>
        <translation>Çukur veya tepe içeren on dakikalık aralıklar, işaretlendi ve diğerleri gibi değerlendirildi: %1.</translation>
    </message>
    <message>
        <source>Without them the result would be another one.</source>
        <translation>Onlarsız sonuç farklı olurdu.</translation>
    </message>
    <message>
        <source>Without them the result is the same.</source>
        <translation>Onlarsız sonuç aynıdır.</translation>
    </message>
    <message>
        <source>The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.</source>
        <translation>Standart frekansı yılın % 99,5&apos;i için ister; sınır seti haftaları değerlendirir.</translation>
    </message>
    <message>
        <source>Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with the limit in percent, and one value inside is enough. Hence the other result.</source>
        <translation>Cihaz, gerilim ve frekans: V veya Hz sapmasının yüz katını yüzde sınırıyla karşılaştırır ve içeride tek değer yeterlidir. Farklı sonuç bundandır.</translation>
    </message>
    <message>
        <source>Instrument, harmonics: one value that is not below the limit fails, whatever the share. Hence the other result.</source>
        <translation>Cihaz, harmonikler: oran ne olursa olsun sınırın altında olmayan tek değer yeterlidir. Farklı sonuç bundandır.</translation>
    </message>
    <message>
        <source>Instrument, unbalance and flicker: one value below the limit is enough. Hence the other result.</source>
        <translation>Cihaz, dengesizlik ve fliker: sınırın altında tek değer yeterlidir. Farklı sonuç bundandır.</translation>
    </message>
    <message>
        <source>its nominal value is not known</source>
        <translation>nominal değer bilinmiyor</translation>
    </message>
    <message>
        <source>Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found them, by thresholds of its own. The verdict does not rest on them.</source>
        <translation>Gerilim, harmonikler, dengesizlik, frekans ve fliker: cihazın kendi eşiklerine göre bulduğu olaylar. Karar bunlara dayanmaz.</translation>
    </message>
    <message>
        <source>As far as it was judged, the supply complies with %1.</source>
        <translation>Değerlendirilen kısmıyla besleme %1 ile uyumlu.</translation>
    </message>
    <message>
        <source>each of its intervals is incomplete or has an interruption</source>
        <translation>her aralığı eksik ya da kesinti içeriyor</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply did not keep to the limits of %1.</source>
        <translation>Bir haftadan kısa (%2), gösterge niteliğinde: besleme %1 sınırları dışına çıktı.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of %1.</source>
        <translation>Bir haftadan kısa (%2), gösterge niteliğinde: değerlendirilen kısmıyla besleme %1 sınırları içinde kaldı.</translation>
    </message>
    <message>
        <source>Indication from less than a week (%2): the supply kept to the limits of %1.</source>
        <translation>Bir haftadan kısa (%2), gösterge niteliğinde: besleme %1 sınırları içinde kaldı.</translation>
    </message>
    <message>
        <source>%1 was judged in %2 of the time only.</source>
        <translation>%1 sürenin yalnızca %2 kadarında değerlendirildi.</translation>
    </message>
    <message>
        <source>The last of them is only %1 long.</source>
        <translation>Sonuncusu yalnızca %1 sürer.</translation>
    </message>
</context>
<context>
    <name>RmsTrendPage</name>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>EVENTS :</source>
        <translation>Olaylar :</translation>
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
        <translation>Yeniden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>System Status:

Logger: %1
Total Events: %2
Dips: %3;   Swell: %4;   Interruption: %5;   Transients: %6;   Inrush: %7</source>
        <translation>Sistem durumu:

Kaydedici: %1
Toplam olay: %2
Çukur: %3;   Tepe: %4;   Kesinti: %5;   Transiyent: %6;   Kalkış akımı: %7</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>çalışıyor</translation>
    </message>
    <message>
        <source>Stoped</source>
        <translation>durdu</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dosya adı:</translation>
    </message>
    <message>
        <source>Screen </source>
        <translation>Ekran </translation>
    </message>
    <message>
        <source>Data </source>
        <translation>Veri </translation>
    </message>
    <message>
        <source>Enter: edit the name</source>
        <translation>Enter: adı düzenle</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>The file &quot;</source>
        <translation>Dosya &quot;</translation>
    </message>
    <message>
        <source>&quot; is exist.
Do you want to overwrite it?</source>
        <translation>&quot; zaten var.
Üzerine yazılsın mı?</translation>
    </message>
</context>
<context>
    <name>ScopePage</name>
    <message>
        <source>Freq =</source>
        <translation>Frek =</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
</context>
<context>
    <name>SetupClamp2</name>
    <message>
        <source>Clamp</source>
        <translation>Pens</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>I Ratio :</source>
        <translation>I oranı :</translation>
    </message>
    <message>
        <source>V Ratio :</source>
        <translation>U oranı :</translation>
    </message>
    <message>
        <source>Channel :</source>
        <translation>Kanal :</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fazlar</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Nötr</translation>
    </message>
    <message>
        <source>Clamp :</source>
        <translation>Pens :</translation>
    </message>
    <message>
        <source>Sensitivity :</source>
        <translation>Duyarlılık :</translation>
    </message>
    <message>
        <source>I range :</source>
        <translation>I aralığı :</translation>
    </message>
    <message>
        <source>Flexible :</source>
        <translation>Esnek :</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>numerator</source>
        <translation>pay</translation>
    </message>
    <message>
        <source>denominator</source>
        <translation>payda</translation>
    </message>
    <message>
        <source>Uneditable Clamp!</source>
        <translation>Bu pens düzenlenemez!</translation>
    </message>
    <message>
        <source>Delete the Clamp?</source>
        <translation>Pens silinsin mi?</translation>
    </message>
</context>
<context>
    <name>SetupClamps</name>
    <message>
        <source>Clamp Exist!</source>
        <translation>Pens zaten var!</translation>
    </message>
</context>
<context>
    <name>SetupConfigEnterPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>BAĞLANTI ŞEKLİ</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>SetupConfigPage</name>
    <message>
        <source>JOIN CONFIG</source>
        <translation>BAĞLANTI ŞEKLİ</translation>
    </message>
    <message>
        <source>Page 1</source>
        <translation>Sayfa 1</translation>
    </message>
    <message>
        <source>Page 2</source>
        <translation>Sayfa 2</translation>
    </message>
    <message>
        <source>Page 3</source>
        <translation>Sayfa 3</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>SetupEditor</name>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>SetupFlicker</name>
    <message>
        <source>Flicker</source>
        <translation>Kırpışma</translation>
    </message>
    <message>
        <source>Plt Weighting Curve</source>
        <translation>Plt ağırlık eğrisi</translation>
    </message>
</context>
<context>
    <name>SetupFunctions</name>
    <message>
        <source>Functions</source>
        <translation>İşlevler</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source> Harmonics</source>
        <translation> Harmonikler</translation>
    </message>
    <message>
        <source> Flicker</source>
        <translation> Kırpışma</translation>
    </message>
    <message>
        <source> Transients</source>
        <translation> Transiyentler</translation>
    </message>
    <message>
        <source> Inrush</source>
        <translation> Kalkış akımı</translation>
    </message>
    <message>
        <source> Mains Signaling</source>
        <translation> Şebeke sinyalleri</translation>
    </message>
</context>
<context>
    <name>SetupInrush</name>
    <message>
        <source>Inrush</source>
        <translation>Kalkış akımı</translation>
    </message>
    <message>
        <source>DURATION</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Nominal Amps</source>
        <translation>Anma akımı</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Eşik</translation>
    </message>
    <message>
        <source>Hysteresis</source>
        <translation>Histerezis</translation>
    </message>
</context>
<context>
    <name>SetupKFactor</name>
    <message>
        <source>Harmonics</source>
        <translation>Harmonikler</translation>
    </message>
    <message>
        <source>K-factor method:</source>
        <translation>K faktörü yöntemi:</translation>
    </message>
    <message>
        <source>K-factor par. e:</source>
        <translation>K faktörü par. e:</translation>
    </message>
    <message>
        <source>K-factor par. q:</source>
        <translation>K faktörü par. q:</translation>
    </message>
</context>
<context>
    <name>SetupLimitMenu</name>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>built-in</source>
        <translation>yerleşik</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>kullanımda</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Empty name!</source>
        <translation>Ad boş!</translation>
    </message>
    <message>
        <source>Invalid name!</source>
        <translation>Geçersiz ad!</translation>
    </message>
    <message>
        <source>It exists, Overwrite it?</source>
        <translation>Zaten var. Üzerine yazılsın mı?</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Üzerine yaz</translation>
    </message>
    <message>
        <source>Name of the new limits</source>
        <translation>Yeni sınırların adı</translation>
    </message>
    <message>
        <source>Name of the limits</source>
        <translation>Sınırların adı</translation>
    </message>
    <message>
        <source>Delete the Limits?</source>
        <translation>Sınırlar silinsin mi?</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Sınırlar</translation>
    </message>
    <message>
        <source>Enter: values</source>
        <translation>Enter: değerler</translation>
    </message>
</context>
<context>
    <name>SetupMain</name>
    <message>
        <source>Config</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Vnom</source>
        <translation>Unom</translation>
    </message>
    <message>
        <source>Freq</source>
        <translation>Frekans</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pens</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Sonraki sayfa</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Ölçüm</translation>
    </message>
</context>
<context>
    <name>SetupMainPage2</name>
    <message>
        <source>Limits</source>
        <translation>Sınırlar</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>İşlevler</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Önceki sayfa</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Ölçüm</translation>
    </message>
</context>
<context>
    <name>SetupMainsSig</name>
    <message>
        <source>Mains Signaling</source>
        <translation>Şebeke sinyalleri</translation>
    </message>
    <message>
        <source>Signaling Frequency 1 (Hz)</source>
        <translation>Sinyal frekansı 1 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 1 (%)</source>
        <translation>Algılama eşiği 1 (%)</translation>
    </message>
    <message>
        <source>Signaling Frequency 2 (Hz)</source>
        <translation>Sinyal frekansı 2 (Hz)</translation>
    </message>
    <message>
        <source>Detection Threshold 2 (%)</source>
        <translation>Algılama eşiği 2 (%)</translation>
    </message>
</context>
<context>
    <name>SetupSummary</name>
    <message>
        <source>Config:</source>
        <translation>Bağlantı:</translation>
    </message>
    <message>
        <source>Vnom:</source>
        <translation>Unom:</translation>
    </message>
    <message>
        <source>Freq:</source>
        <translation>Frekans:</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Sınırlar:</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fazlar</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Nötr</translation>
    </message>
    <message>
        <source>Clamp</source>
        <translation>Pens</translation>
    </message>
    <message>
        <source>I Ratio</source>
        <translation>I oranı</translation>
    </message>
    <message>
        <source>V Ratio</source>
        <translation>U oranı</translation>
    </message>
    <message>
        <source>Irange</source>
        <translation>I aralığı</translation>
    </message>
</context>
<context>
    <name>SetupTransient</name>
    <message>
        <source>Transients</source>
        <translation>Transiyentler</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Eşik</translation>
    </message>
</context>
<context>
    <name>SetupVnomPage</name>
    <message>
        <source>Nominal Voltage</source>
        <translation>Anma gerilimi</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Phase voltage</source>
        <translation>Faz gerilimi</translation>
    </message>
    <message>
        <source>Line voltage</source>
        <translation>Hat gerilimi</translation>
    </message>
    <message>
        <source>Custom: Up and Down change the value</source>
        <translation>Özel: Yukarı ve Aşağı değeri değiştirir</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>Özel: %1</translation>
    </message>
</context>
<context>
    <name>SoftKeyButton</name>
    <message>
        <source>Cursor</source>
        <translation>İmleç</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Yakınlaş</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TÜM</translation>
    </message>
    <message>
        <source>I-HARM.</source>
        <translation>ARA HARM.</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Enerji</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Faz</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Hat</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Seçili</translation>
    </message>
</context>
<context>
    <name>StartTime</name>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Immediate</source>
        <translation>Hemen</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>Zamanlı</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Yıl</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gün</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Dakika</translation>
    </message>
</context>
<context>
    <name>SystemTray</name>
    <message>
        <source>Nothing is stored:
storage full</source>
        <translation>Kayıt yok:
bellek dolu</translation>
    </message>
</context>
<context>
    <name>TranStart</name>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
</context>
<context>
    <name>TransMain</name>
    <message>
        <source>Transients</source>
        <translation>Transiyentler</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Eşik</translation>
    </message>
</context>
<context>
    <name>TransScopePage</name>
    <message>
        <source>TRIGGER ON:</source>
        <translation>TETİK:</translation>
    </message>
</context>
<context>
    <name>TransView</name>
    <message>
        <source>Prev</source>
        <translation>Önceki</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>UnbalVectorPage</name>
    <message>
        <source>Freq =</source>
        <translation>Frek =</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Negatif</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Sıfır</translation>
    </message>
</context>
<context>
    <name>UnbalanMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frek =</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektör</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Güç kalitesi</translation>
    </message>
</context>
<context>
    <name>UserDatePage</name>
    <message>
        <source>Date &amp; Time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Time Zone:</source>
        <translation>Saat dilimi:</translation>
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
        <translation>Ağ maskesi:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Ağ geçidi:</translation>
    </message>
    <message>
        <source>LAN SETUP</source>
        <translation>LAN AYARLARI</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Use DHCP</source>
        <translation>DHCP kullan</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Statik</translation>
    </message>
    <message>
        <source>IP Setup</source>
        <translation>IP ayarları</translation>
    </message>
    <message>
        <source>IP In-use:</source>
        <translation>Kullanılan IP:</translation>
    </message>
</context>
<context>
    <name>UserUpdate</name>
    <message>
        <source>Execute</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelleme</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Yazılım</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Donanım yazılımı</translation>
    </message>
    <message>
        <source>Update in progress. Do not operate!!!</source>
        <translation>Güncelleme sürüyor. Dokunmayın!!!</translation>
    </message>
    <message>
        <source>Please insert USB Disk...</source>
        <translation>USB bellek takın...</translation>
    </message>
    <message>
        <source>File not found...</source>
        <translation>Dosya bulunamadı...</translation>
    </message>
    <message>
        <source>Software update complete...</source>
        <translation>Yazılım güncellemesi tamamlandı...</translation>
    </message>
    <message>
        <source>Software update error...</source>
        <translation>Yazılım güncelleme hatası...</translation>
    </message>
    <message>
        <source>Unkown error...</source>
        <translation>Bilinmeyen hata...</translation>
    </message>
    <message>
        <source>Firmware data checksum ok.</source>
        <translation>Donanım yazılımı sağlaması doğru.</translation>
    </message>
    <message>
        <source>Firmware update fault.</source>
        <translation>Donanım yazılımı güncellenemedi.</translation>
    </message>
    <message>
        <source>Firmware update complete...</source>
        <translation>Donanım yazılımı güncellendi...</translation>
    </message>
    <message>
        <source>ErrCode: </source>
        <translation>Hata kodu: </translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation>Zaman aşımı</translation>
    </message>
    <message>
        <source>C403 Timeout</source>
        <translation>C403 Zaman aşımı</translation>
    </message>
</context>
<context>
    <name>UserWifiPage</name>
    <message>
        <source>UNKNOWN</source>
        <translation>BİLİNMİYOR</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
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
        <translation>Durum:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Ağ maskesi:</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Ağ geçidi:</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Bağlanıyor</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Taranıyor</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>secured</source>
        <translation>korumalı</translation>
    </message>
    <message>
        <source>no networks</source>
        <translation>ağ yok</translation>
    </message>
</context>
<context>
    <name>UserZiPage</name>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Kullanıcı</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Tarih ve saat</translation>
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
        <translation>Güncelleme</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Sleep Time</source>
        <translation>Uyku süresi</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Işık</translation>
    </message>
    <message>
        <source>Phase Colors</source>
        <translation>Faz renkleri</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>KAPALI</translation>
    </message>
</context>
<context>
    <name>VifMain</name>
    <message>
        <source>Freq =</source>
        <translation>Frek =</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Eğilim</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Dondur</translation>
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
        <translation>Frek(Hz)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tip</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
</context>
<context>
    <name>VirtualKeyBoard</name>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Geçersiz giriş!</translation>
    </message>
</context>
<context>
    <name>WaveMain</name>
    <message>
        <source>File name:</source>
        <translation>Dosya adı:</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Örnekleme:</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Süre:</translation>
    </message>
    <message>
        <source>Time left:</source>
        <translation>Kalan süre:</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Dalga şekli</translation>
    </message>
    <message>
        <source>The capture waits for its start.</source>
        <translation>Yakalama başlangıcı bekliyor.</translation>
    </message>
    <message>
        <source>The capture is running.</source>
        <translation>Yakalama sürüyor.</translation>
    </message>
    <message>
        <source>The capture has ended.
Its data stands in Memory.</source>
        <translation>Yakalama sona erdi.
Veriler bellekte.</translation>
    </message>
    <message>
        <source>The storage takes no more data.
What was captured stands in Memory.</source>
        <translation>Bellek artık veri almıyor.
Yakalananlar bellekte.</translation>
    </message>
    <message>
        <source>The capture was ended
before it had data.</source>
        <translation>Yakalama, veri alınmadan
sona erdi.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Do you want to stop
</source>
        <translation>Geçerli kaydı
</translation>
    </message>
    <message>
        <source> the current record?</source>
        <translation> durdurmak istiyor musunuz?</translation>
    </message>
</context>
<context>
    <name>WaveSetup</name>
    <message>
        <source>Wave</source>
        <translation>Dalga şekli</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Süre:</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Sample rate:</source>
        <translation>Örnekleme:</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dosya adı:</translation>
    </message>
    <message>
        <source>Memory Available:</source>
        <translation>Boş bellek:</translation>
    </message>
    <message>
        <source>There is no room for a capture.
Delete files in Memory.</source>
        <translation>Yakalama için yer yok.
Bellekten dosya silin.</translation>
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
        <translation>Kırpışma</translation>
    </message>
</context>
<context>
    <name>wlanSettingDialog</name>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Connect To</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>SSID:</source>
        <translation>SSID:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>(stored)</source>
        <translation>(kayıtlı)</translation>
    </message>
    <message>
        <source>Invalid input!</source>
        <translation>Geçersiz giriş!</translation>
    </message>
</context>
</TS>
