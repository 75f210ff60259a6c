<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PaperOutput</source>
        <translation>Paper/Output</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Job Type:</source>
        <translation>Job Type:</translation>
    </message>
    <message>
        <source>Paper Summary:</source>
        <translation>Paper:</translation>
    </message>
    <message>
        <source>Two Sided Printing:</source>
        <translation>Two-Sided Printing:</translation>
    </message>
    <message>
        <source>Stapling:</source>
        <translation>Stapling:</translation>
    </message>
    <message>
        <source>Hole Punch:</source>
        <translation>Hole Punch:</translation>
    </message>
    <message>
        <source>Fold:</source>
        <translation>Fold:</translation>
    </message>
    <message>
        <source>Output Destination:</source>
        <translation>Output Destination:</translation>
    </message>
    <message>
        <source>Finishing Label</source>
        <translation>Finishing:</translation>
    </message>
    <message>
        <source>Covers Menu Option</source>
        <translation>Covers…</translation>
    </message>
    <message>
        <source>Separators Option</source>
        <translation>Separators…</translation>
    </message>
    <message>
        <source>No Staple Value</source>
        <translation>No Staple</translation>
    </message>
    <message>
        <source>NoHolePunch</source>
        <translation>No Hole Punch</translation>
    </message>
    <message>
        <source>No Fold</source>
        <translation>No Fold</translation>
    </message>
    <message>
        <source>BiFoldNoStaple</source>
        <translation>Bi-Fold</translation>
    </message>
    <message>
        <source>FoldCFold</source>
        <translation>C-Fold</translation>
    </message>
    <message>
        <source>FoldZFold</source>
        <translation>Z-Fold</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet</source>
        <translation>Z-Fold Half Sheet</translation>
    </message>
    <message>
        <source>Booklet Creation...</source>
        <translation>Booklet Creation…</translation>
    </message>
    <message>
        <source>2 Staples</source>
        <translation>2 Staples</translation>
    </message>
    <message>
        <source>Multiple Staples</source>
        <translation>Multiple Staples</translation>
    </message>
    <message>
        <source>HolePunch</source>
        <translation>Hole Punch</translation>
    </message>
    <message>
        <source>2 Hole Punch</source>
        <translation>2-Hole Punch</translation>
    </message>
    <message>
        <source>3 Hole Punch</source>
        <translation>3-Hole Punch</translation>
    </message>
    <message>
        <source>4 Hole Punch</source>
        <translation>4-Hole Punch</translation>
    </message>
    <message>
        <source>Booklet Fold</source>
        <translation>Booklet Fold</translation>
    </message>
    <message>
        <source>Booklet FoldStaple</source>
        <translation>Booklet Fold and Staple</translation>
    </message>
    <message>
        <source>Booklet Layout</source>
        <translation>Booklet Layout</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Printer Default</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Finisher A: Top Tray</source>
        <translation>Finisher A: Top Tray</translation>
    </message>
    <message>
        <source>Finisher B: Top Tray</source>
        <translation>Finisher B: Top Tray</translation>
    </message>
    <message>
        <source>Finisher C: Top Tray</source>
        <translation>Finisher C: Top Tray</translation>
    </message>
    <message>
        <source>Finisher D: Top Tray</source>
        <translation>Finisher D: Top Tray</translation>
    </message>
    <message>
        <source>Finisher B: Main Stacker</source>
        <translation>Finisher B: Main Stacker</translation>
    </message>
    <message>
        <source>Finisher C: Main Stacker</source>
        <translation>Finisher C: Main Stacker</translation>
    </message>
    <message>
        <source>Finisher D: Main Stacker</source>
        <translation>Finisher D: Main Stacker</translation>
    </message>
    <message>
        <source>Separator Summary</source>
        <translation>Separators: %1</translation>
    </message>
    <message>
        <source>Separators Title</source>
        <translation>Transparency Separators</translation>
    </message>
    <message>
        <source>Separator Option Label</source>
        <translation>Separators:</translation>
    </message>
    <message>
        <source>Separator Stock Label</source>
        <translation>Separator Stock:</translation>
    </message>
    <message>
        <source>Min-Max Digits</source>
        <translation>(%1 to %2 digits)</translation>
    </message>
    <message>
        <source>SecurePrintSetupTitle</source>
        <translation>Secure Print Setup</translation>
    </message>
    <message>
        <source>SecurePrintHintText</source>
        <translation>The job is held at the printer until this passcode is entered on its control panel.</translation>
    </message>
    <message>
        <source>Passcode:</source>
        <translation>Passcode:</translation>
    </message>
    <message>
        <source>ConfirmPasscode:</source>
        <translation>Confirm Passcode:</translation>
    </message>
    <message>
        <source>OK Command</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel Command</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Passcode Required Header</source>
        <translation>Passcode Created</translation>
    </message>
    <message>
        <source>Passcode Required Message</source>
        <translation>A passcode needs %1 to %2 digits, so the passcode %3 was made for this job. Enter it at the printer to release the job.</translation>
    </message>
    <message>
        <source>TimeToPrint:</source>
        <translation>Time to Print:</translation>
    </message>
    <message>
        <source>Saved Job</source>
        <translation>Saved Job</translation>
    </message>
    <message>
        <source>withPasscode</source>
        <translation>Protect with a passcode</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>SecureSavedJob:</source>
        <translation>Secure Saved Job:</translation>
    </message>
    <message>
        <source>Booklet Creation</source>
        <translation>Booklet Creation</translation>
    </message>
    <message>
        <source>Booklet Finishing:</source>
        <translation>Booklet Finishing:</translation>
    </message>
    <message>
        <source>Booklet Fold and Staple</source>
        <translation>Booklet Fold and Staple</translation>
    </message>
    <message>
        <source>Booklet Layout:</source>
        <translation>Booklet Layout:</translation>
    </message>
    <message>
        <source>Draw Outlines</source>
        <translation>Draw Page Outlines</translation>
    </message>
    <message>
        <source>Fit to New Size Label</source>
        <translation>Fit to New Size:</translation>
    </message>
    <message>
        <source>Gutter Label</source>
        <translation>Gutter (points):</translation>
    </message>
    <message>
        <source>Creep Label</source>
        <translation>Creep (points):</translation>
    </message>
    <message>
        <source>Catch Tray</source>
        <translation>Top Catch Tray</translation>
    </message>
    <message>
        <source>Main Stacker</source>
        <translation>Main Stacker</translation>
    </message>
    <message>
        <source>Values restored.</source>
        <translation>Values restored.</translation>
    </message>
    <message>
        <source>Job Format:</source>
        <translation>Stored As:</translation>
    </message>
    <message>
        <source>Gutter Range Label</source>
        <translation>(%1 to %2 points)</translation>
    </message>
    <message>
        <source>Creep Range Label</source>
        <translation>(%1 to %2 points)</translation>
    </message>
    <message>
        <source>Booklet Options Title</source>
        <translation>Booklet Options</translation>
    </message>
</context>
</TS>
