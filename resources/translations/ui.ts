<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CustomValueTitle</source>
        <translation>Custom Value</translation>
    </message>
    <message>
        <source>CustomValuePrompt</source>
        <translation>Enter a value:</translation>
    </message>
</context>
</TS>
