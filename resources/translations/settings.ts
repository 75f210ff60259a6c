<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PrinterDefault</source>
        <translation>Printer Default</translation>
    </message>
    <message>
        <source>UseJobSetting</source>
        <translation>Use Job Setting</translation>
    </message>
</context>
</TS>
