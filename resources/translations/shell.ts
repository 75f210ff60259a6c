<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PDE Shell</source>
        <translation>Orvan Features</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Header</source>
        <translation>Secure Print needs a passcode</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Message</source>
        <translation>Enter a passcode of %1 to %2 digits in the Secure Print setup before printing. You will type the same passcode at the printer to release the job.</translation>
    </message>
</context>
</TS>
