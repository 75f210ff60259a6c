<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>JobNotes</source>
        <translation>Job Notes</translation>
    </message>
    <message>
        <source>Job Name:</source>
        <translation>Job Name:</translation>
    </message>
    <message>
        <source>Sender Name:</source>
        <translation>Sender Name:</translation>
    </message>
    <message>
        <source>Recipient Name:</source>
        <translation>Recipient Name:</translation>
    </message>
    <message>
        <source>Banner Message:</source>
        <translation>Banner Message:</translation>
    </message>
    <message>
        <source>Job Start Message:</source>
        <translation>Job Start Message:</translation>
    </message>
    <message>
        <source>JobNotesDefaults...</source>
        <translation>Defaults...</translation>
    </message>
    <message>
        <source>JobNotesDefaultsTitle</source>
        <translation>Job Notes Defaults</translation>
    </message>
    <message>
        <source>JobNotesDefaultsIntro</source>
        <translation>When you open the Print dialog for a new job, fill in these names automatically:</translation>
    </message>
    <message>
        <source>UseDocumentNameAsJobName</source>
        <translation>Job name: the document's name</translation>
    </message>
    <message>
        <source>UseLoginNameAsSenderName</source>
        <translation>Sender name: my login name</translation>
    </message>
    <message>
        <source>UseLoginNameAsRecipientName</source>
        <translation>Recipient name: my login name</translation>
    </message>
    <message>
        <source>JobNotesDefaultsNotSaved</source>
        <translation>The job notes defaults could not be saved.</translation>
    </message>
    <message>
        <source>JobNotesDefaultsNotSavedMessage</source>
        <translation>Your preferences folder could not be written to. Your earlier defaults stay in use.</translation>
    </message>
</context>
</TS>
