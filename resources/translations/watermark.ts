<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>DraftWatermark</source>
        <translation>Draft</translation>
    </message>
    <message>
        <source>ConfidentialWatermark</source>
        <translation>Confidential</translation>
    </message>
    <message>
        <source>CopyWatermark</source>
        <translation>Copy</translation>
    </message>
</context>
</TS>
