<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>TstLanguage</name>
    <message>
        <source>Power off?</source>
        <translation>Выключить?</translation>
    </message>
</context>
</TS>
