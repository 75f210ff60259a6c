<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>RightToLeft</source>
        <translation>Right to Left</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>Left to Right</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Face Down</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Face Up</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Kestrel 3100</source>
        <translation>Kestrel 3100</translation>
    </message>
    <message>
        <source>True</source>
        <translation>True</translation>
    </message>
    <message>
        <source>False</source>
        <translation>False</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Gather</source>
        <translation>Gather</translation>
    </message>
    <message>
        <source>NoWatermark</source>
        <translation>No Watermark</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>New…</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>WatermarkBackground</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>WatermarkBlend</source>
        <translation>Blend</translation>
    </message>
    <message>
        <source>WatermarkForeground</source>
        <translation>Foreground</translation>
    </message>
    <message>
        <source>WatermarkPrintOnAllPages</source>
        <translation>Print on All Pages</translation>
    </message>
    <message>
        <source>WatermarmPrintOnPage1Only</source>
        <translation>Print on First Page Only</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>No Page Borders</source>
        <translation>No Page Borders</translation>
    </message>
    <message>
        <source>Draw Page Borders</source>
        <translation>Draw Page Borders</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Setup…</translation>
    </message>
    <message>
        <source>Do Not Print a Cover Sheet</source>
        <translation>Do Not Print a Cover Sheet</translation>
    </message>
    <message>
        <source>Print a Cover Sheet...</source>
        <translation>Print a Cover Sheet…</translation>
    </message>
    <message>
        <source>Print a Confirmation Sheet</source>
        <translation>Print a Confirmation Sheet</translation>
    </message>
    <message>
        <source>Do Not Print a Confirmation Sheet</source>
        <translation>Do Not Print a Confirmation Sheet</translation>
    </message>
    <message>
        <source>Forced 4800 bps</source>
        <translation>Forced 4800 bps</translation>
    </message>
    <message>
        <source>G3 (14.4 Kbps)</source>
        <translation>G3 (14.4 Kbps)</translation>
    </message>
    <message>
        <source>Super G3 (33.6 Kbps)</source>
        <translation>Super G3 (33.6 Kbps)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Superfine</source>
        <translation>Superfine</translation>
    </message>
    <message>
        <source>Cover Sheet Paper Size</source>
        <translation>Cover Sheet Paper Size</translation>
    </message>
    <message>
        <source>Show Sender's Information</source>
        <translation>Show Sender's Information</translation>
    </message>
    <message>
        <source>Hide Sender's Information</source>
        <translation>Hide Sender's Information</translation>
    </message>
    <message>
        <source>Show All Recipients</source>
        <translation>Show All Recipients</translation>
    </message>
    <message>
        <source>Hide Recipient's Information</source>
        <translation>Hide Recipient's Information</translation>
    </message>
    <message>
        <source>Show Custom Text</source>
        <translation>Show Custom Text</translation>
    </message>
    <message>
        <source>StockSizeLetter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>StockSizeA4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Inches</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeters</translation>
    </message>
    <message>
        <source>0.5" (8.5x11" Template)</source>
        <translation>0.5" (8.5x11" Template)</translation>
    </message>
    <message>
        <source>12.7 mm (A4 Template)</source>
        <translation>12.7 mm (A4 Template)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Separator Option None</source>
        <translation>No Separators</translation>
    </message>
    <message>
        <source>Separator Option Blank</source>
        <translation>Blank Separators</translation>
    </message>
    <message>
        <source>Separator Option Printed</source>
        <translation>Printed Separators</translation>
    </message>
    <message>
        <source>PhotoKey</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Enhanced</source>
        <translation>Enhanced</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Economy</source>
        <translation>Economy</translation>
    </message>
    <message>
        <source>600 x 600 Resolution</source>
        <translation>600 x 600 dpi</translation>
    </message>
    <message>
        <source>CoverPrinted</source>
        <translation>Printed</translation>
    </message>
    <message>
        <source>CoverBlankorPreprinted</source>
        <translation>Blank or Preprinted</translation>
    </message>
    <message>
        <source>Simplex</source>
        <translation>One-Sided</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Two-Sided, Long-Edge Binding</translation>
    </message>
    <message>
        <source>DuplexShort</source>
        <translation>Two-Sided, Short-Edge Binding</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal Print</translation>
    </message>
    <message>
        <source>SecurePrint</source>
        <translation>Secure Print</translation>
    </message>
    <message>
        <source>SampleSet</source>
        <translation>Sample Set</translation>
    </message>
    <message>
        <source>DelayedPrint</source>
        <translation>Delayed Print</translation>
    </message>
    <message>
        <source>SavedJob</source>
        <translation>Saved Job</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>LAN Fax</translation>
    </message>
    <message>
        <source>PublicFolder</source>
        <translation>Public Folder</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>SavePrint</source>
        <translation>Save and Print</translation>
    </message>
    <message>
        <source>UseJobName</source>
        <translation>Use Job Name</translation>
    </message>
    <message>
        <source>UseLoginName</source>
        <translation>Use Login Name</translation>
    </message>
    <message>
        <source>1 Staple</source>
        <translation>1 Staple</translation>
    </message>
    <message>
        <source>Post-Print Inserter</source>
        <translation>Post-Print Inserter</translation>
    </message>
</context>
</TS>
