<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Image Options</source>
        <translation>Image Options</translation>
    </message>
    <message>
        <source>Resolution Label</source>
        <translation>Resolution:</translation>
    </message>
    <message>
        <source>Toner Saver:</source>
        <translation>Toner Saver:</translation>
    </message>
    <message>
        <source>Conserve Dry Ink</source>
        <translation>Conserve Dry Ink</translation>
    </message>
    <message>
        <source>Invert Image Label</source>
        <translation>Invert Image:</translation>
    </message>
    <message>
        <source>Negative Image Title</source>
        <translation>Negative Image</translation>
    </message>
    <message>
        <source>Mirror Image Title</source>
        <translation>Mirror Image</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Booklet Image Order:</source>
        <translation>Booklet Image Order:</translation>
    </message>
    <message>
        <source>Output Options:</source>
        <translation>Output Options:</translation>
    </message>
    <message>
        <source>Banner Sheet:</source>
        <translation>Banner Sheet:</translation>
    </message>
    <message>
        <source>Request Offset:</source>
        <translation>Request Offset:</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>About…</translation>
    </message>
    <message>
        <source>About Title</source>
        <translation>About %1</translation>
    </message>
    <message>
        <source>About Version</source>
        <translation>Version %1 (build %2)</translation>
    </message>
</context>
</TS>
