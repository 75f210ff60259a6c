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
    <message>
        <source>BookletWatermarkPanelTitle</source>
        <translation>Booklet/Watermark</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Watermark:</source>
        <translation>Watermark:</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>Booklet Creation Hint</source>
        <translation>Print the document as a booklet: pages laid out two to a sheet, folded or stapled in the middle.</translation>
    </message>
    <message>
        <source>Watermark Editor</source>
        <translation>Watermark Editor</translation>
    </message>
    <message>
        <source>Delete Watermark Header</source>
        <translation>Delete Watermark</translation>
    </message>
    <message>
        <source>Delete Watermark Message</source>
        <translation>Do you want to delete the watermark “%1”? This cannot be undone.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Choose File...</source>
        <translation>Choose File…</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Angle:</source>
        <translation>Angle:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Scale (%):</translation>
    </message>
    <message>
        <source>Density:</source>
        <translation>Density (%):</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Tenths of an Inch</source>
        <translation>Tenths of an inch</translation>
    </message>
    <message>
        <source>Horizontal:</source>
        <translation>Horizontal:</translation>
    </message>
    <message>
        <source>Vertical:</source>
        <translation>Vertical:</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size (points):</translation>
    </message>
</context>
</TS>
