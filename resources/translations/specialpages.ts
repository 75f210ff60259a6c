<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Page Number Limit Title</source>
        <translation>Page Number Too Large</translation>
    </message>
    <message>
        <source>Page Number Limit</source>
        <translation>Page numbers can have at most %1 digits.</translation>
    </message>
    <message>
        <source>Invalid Pages Title</source>
        <translation>Invalid Pages</translation>
    </message>
    <message>
        <source>Invalid Page Ranges</source>
        <translation>Enter page numbers or page ranges separated by commas, for example 1, 4-6, 10-.</translation>
    </message>
    <message>
        <source>Invalid Ranges Title</source>
        <translation>Invalid Page Range</translation>
    </message>
    <message>
        <source>Invalid Range Order</source>
        <translation>The first page of a range must not come after its last page.</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Title</source>
        <translation>Invalid Page Number</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Message</source>
        <translation>Exception pages start at page 1. Page 0 cannot be used here.</translation>
    </message>
    <message>
        <source>PageRangeConflictTitle</source>
        <translation>Page Range Conflict</translation>
    </message>
    <message>
        <source>PageRangeConflictMessage</source>
        <translation>These pages already have other special page settings.</translation>
    </message>
</context>
</TS>
