<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>OtherColor</source>
        <translation>Other Color</translation>
    </message>
    <message>
        <source>OtherType</source>
        <translation>Other Type</translation>
    </message>
    <message>
        <source>PaperSize</source>
        <translation>Paper Size</translation>
    </message>
    <message>
        <source>DefaultStock</source>
        <translation>Default Stock</translation>
    </message>
    <message>
        <source>AdvancedStockSelectionMenu</source>
        <translation>Advanced Stock Selection…</translation>
    </message>
    <message>
        <source>StockMenuTitle</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>StockName</source>
        <translation>Stock Name</translation>
    </message>
    <message>
        <source>StockColor</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>StockType</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>StockTypePrecutTab</source>
        <translation>Pre-Cut Tab Stock</translation>
    </message>
    <message>
        <source>:</source>
        <translation>: </translation>
    </message>
    <message>
        <source>AdvancedStockSelection</source>
        <translation>Advanced Stock Selection</translation>
    </message>
    <message>
        <source>Unsupported Attributes</source>
        <translation>Attributes Kept with the Stock (Not Used by This Printer)</translation>
    </message>
    <message>
        <source>StockPunchedLabel</source>
        <translation>Pre-punched:</translation>
    </message>
    <message>
        <source>StockNotPunched</source>
        <translation>Not Pre-punched</translation>
    </message>
    <message>
        <source>StockPrepunched</source>
        <translation>Pre-punched</translation>
    </message>
    <message>
        <source>StockColorNameLabel</source>
        <translation>Color name:</translation>
    </message>
    <message>
        <source>StockTypeNameLabel</source>
        <translation>Type name:</translation>
    </message>
    <message>
        <source>StockTabCountLabel</source>
        <translation>Tabs per set:</translation>
    </message>
    <message>
        <source>StockNoTabs</source>
        <translation>None</translation>
    </message>
    <message>
        <source>StockDescriptionSetup</source>
        <translation>Stock Description</translation>
    </message>
    <message>
        <source>StockNameLabel</source>
        <translation>Stock name:</translation>
    </message>
    <message>
        <source>StockDescriptionLabel</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>StockCommentLabel</source>
        <translation>Comment:</translation>
    </message>
    <message>
        <source>StockWeightLabel</source>
        <translation>Weight:</translation>
    </message>
    <message>
        <source>StockWeightUnit</source>
        <translation> g/m²</translation>
    </message>
    <message>
        <source>StockSidesCoatedLabel</source>
        <translation>Coated sides:</translation>
    </message>
    <message>
        <source>StockUncoated</source>
        <translation>Uncoated</translation>
    </message>
    <message>
        <source>StockCoatedFront</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>StockCoatedBack</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>StockCoatedBoth</source>
        <translation>Both Sides</translation>
    </message>
    <message>
        <source>StockCoatingTypeLabel</source>
        <translation>Coating:</translation>
    </message>
    <message>
        <source>StockCoatingGloss</source>
        <translation>Gloss</translation>
    </message>
    <message>
        <source>StockCoatingMatte</source>
        <translation>Matte</translation>
    </message>
    <message>
        <source>StockCoatingSatin</source>
        <translation>Satin</translation>
    </message>
    <message>
        <source>StockFinishLabel</source>
        <translation>Finish:</translation>
    </message>
    <message>
        <source>StockFinishSmooth</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>StockFinishVellum</source>
        <translation>Vellum</translation>
    </message>
    <message>
        <source>StockFinishLinen</source>
        <translation>Linen</translation>
    </message>
    <message>
        <source>StockFinishLaid</source>
        <translation>Laid</translation>
    </message>
    <message>
        <source>StockGrainLabel</source>
        <translation>Grain:</translation>
    </message>
    <message>
        <source>StockGrainLong</source>
        <translation>Long Grain</translation>
    </message>
    <message>
        <source>StockGrainShort</source>
        <translation>Short Grain</translation>
    </message>
    <message>
        <source>CustomPaperSizeTitle</source>
        <translation>Custom Paper Size</translation>
    </message>
    <message>
        <source>CustomSizeWidthLabel</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>CustomSizeLengthLabel</source>
        <translation>Length:</translation>
    </message>
    <message>
        <source>CustomSizeUnitsLabel</source>
        <translation>Units:</translation>
    </message>
    <message>
        <source>CustomSizeRange</source>
        <translation>Width %1 to %2, length %3 to %4 (%5)</translation>
    </message>
</context>
</TS>
