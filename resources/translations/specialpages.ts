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
    <message>
        <source>Special Pages</source>
        <translation>Special Pages</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>Page(s)</translation>
    </message>
    <message>
        <source>Type Title</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Attributes Title</source>
        <translation>Attributes</translation>
    </message>
    <message>
        <source>SpecialPageSummaryFront</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBack</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBefore1</source>
        <translation>Before page 1</translation>
    </message>
    <message>
        <source>SpecialPageSummaryCover</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>SpecialPageSummaryInsert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>SpecialPageSummaryException</source>
        <translation>Exception</translation>
    </message>
    <message>
        <source>SpecialPageSummaryTitle</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>SpecialPagesNone</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Add Covers Command</source>
        <translation>Covers…</translation>
    </message>
    <message>
        <source>Add Inserts Command</source>
        <translation>Inserts…</translation>
    </message>
    <message>
        <source>Add Exceptions Command</source>
        <translation>Exceptions…</translation>
    </message>
    <message>
        <source>Edit Command</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Delete Command</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete All Command</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Undo Command</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Move Up Command</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move Down Command</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Delete Special Pages Title</source>
        <translation>Delete Special Pages?</translation>
    </message>
    <message>
        <source>Delete Selected Special Pages</source>
        <translation>The selected covers, inserts and exception pages will be removed from this job.</translation>
    </message>
    <message>
        <source>Delete All Special Pages</source>
        <translation>All covers, inserts and exception pages will be removed from this job.</translation>
    </message>
    <message>
        <source>No Command</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes Command</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Paper Name Label</source>
        <translation>Paper:</translation>
    </message>
    <message>
        <source>InsertSummaryQuantity</source>
        <translation>Sheets</translation>
    </message>
    <message>
        <source>Job Stock Label</source>
        <translation>Job paper:</translation>
    </message>
    <message>
        <source>Paper Group</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>Covers Dialog Title</source>
        <translation>Covers</translation>
    </message>
    <message>
        <source>Covers Label</source>
        <translation>Covers:</translation>
    </message>
    <message>
        <source>Cover Sides Label</source>
        <translation>Cover Sides:</translation>
    </message>
    <message>
        <source>No Covers</source>
        <translation>No Covers</translation>
    </message>
    <message>
        <source>Front Cover Only</source>
        <translation>Front Cover Only</translation>
    </message>
    <message>
        <source>Same Covers</source>
        <translation>Front and Back Covers</translation>
    </message>
    <message>
        <source>Inserts Dialog Title</source>
        <translation>Inserts</translation>
    </message>
    <message>
        <source>Insert Quantity Label</source>
        <translation>Sheets:</translation>
    </message>
    <message>
        <source>Insert Position Label</source>
        <translation>Insert:</translation>
    </message>
    <message>
        <source>Insert After Pages</source>
        <translation>After Page(s)</translation>
    </message>
    <message>
        <source>Insert Before Page 1</source>
        <translation>Before Page 1</translation>
    </message>
    <message>
        <source>Exceptions Dialog Title</source>
        <translation>Exception Pages</translation>
    </message>
    <message>
        <source>Exception Pages Label</source>
        <translation>Pages:</translation>
    </message>
    <message>
        <source>Exception Plex Label</source>
        <translation>Sides:</translation>
    </message>
</context>
</TS>
