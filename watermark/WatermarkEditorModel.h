// The watermark editor without its widgets: the record being edited (the
// caller's, changed in place), the control values, which controls each mode
// enables, the offset ranges of the page, and the preview document.
#pragma once

#include "watermark/MemoryDocument.h"
#include "watermark/WatermarkData.h"
#include "watermark/WatermarkDocument.h"

#include <QString>

#include <cstdint>

namespace orvan {

inline const QString kWatermarkEditorHelpAnchor =
    QStringLiteral("Layout_Watermark/Watermark/M_Watermark_Editor.htm");
// The text field's limit, in characters.
inline constexpr int kWatermarkTextFieldLimit = 100;
inline constexpr int kTenthsOfAnInch = 0;
inline constexpr int kMillimetres = 1;

// A fresh watermark: blue "ArialMT" text at 72 points, 45 degrees, scale 100,
// density 25, centred, offsets in `units`.
void setDefaultValues(_WatermarkData& record, int units);

// The offset fields' bounds (each field runs from minus to plus its bound)
// for the page (paperWidth, paperHeight) of the record: half the page in
// tenths of an inch or millimetres, truncated to whole units.
struct OffsetBounds
{
    int horizontal = 0;
    int vertical = 0;
    friend bool operator==(const OffsetBounds&, const OffsetBounds&) = default;
};
OffsetBounds OffsetBoundsForPage(double paperWidth, double paperHeight, int units);

class WatermarkEditorModel
{
public:
    // Opens `record` (which must outlive the model): an empty record gets the
    // default values in the units last used; isText follows the text.
    explicit WatermarkEditorModel(_WatermarkData& record);

    const _WatermarkData& record() const { return m_record; }
    const WatermarkEditorValues& values() const { return m_values; }
    OffsetBounds offsetBounds() const;
    bool isText() const { return m_record.isText != 0; }
    // Text mode enables the text field, font button, colour swatch and angle;
    // picture mode the file field, choose-file button and scale. Density,
    // offsets and units stay enabled in both.
    bool textControlsEnabled() const { return isText(); }
    bool angleEnabled() const { return isText(); }
    bool scaleEnabled() const { return !isText(); }

    // Commands: each redraws the preview with force.
    void setTextMode(bool text);
    void setPicture(const QString& path);
    void setFont(const QString& postScriptName, int size);
    // A colour of 16-bit components becomes the well and the font colour.
    void setColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue);
    // Offsets keep their place on the page; the fields show them in the
    // new units, within the new bounds.
    void setUnits(int units);
    void centre();

    // Value changes: the preview is redrawn only when the record changed.
    void setText(const QString& text);
    void setAngle(int angle);
    void setScale(int scale);
    void setDensity(int density);
    void setOffsets(int horizontalField, int verticalField);

    // Called on OK: a text watermark drops any picture, a picture watermark
    // its text, so the record is named as the mode shown.
    void finish();

    const MemoryDocument& preview() const { return m_preview; }
    std::uint64_t previewVersion() const { return m_previewVersion; }
    // The editor's preview step; true when a document was made.
    bool refreshPreview(bool force);

private:
    _WatermarkData& m_record;
    WatermarkEditorValues m_values;
    MemoryDocument m_preview;
    std::uint64_t m_previewVersion = 0;
};

} // namespace orvan
