#include "watermark/WatermarkEditorModel.h"

#include "watermark/BookletWatermarkModel.h"

#include <algorithm>
#include <cmath>

namespace orvan {

namespace {

// The units the editor showed last; a new watermark starts in them.
int& LastUnits()
{
    static int units = kTenthsOfAnInch;
    return units;
}

double FieldUnitsPerInch(int units)
{
    return units == kMillimetres ? 25.4 : 10.0;
}

} // namespace

void setDefaultValues(_WatermarkData& record, int units)
{
    record.textString.clear();
    record.filename.clear();
    record.filePath.clear();
    record.fontName.assignIfFits(std::string_view("ArialMT"));
    record.fontSize = 72;
    record.wellColorRed = record.fontColorRed = 0;
    record.wellColorGreen = record.fontColorGreen = 0;
    record.wellColorBlue = record.fontColorBlue = 1.0f;
    record.wellColorAlpha = record.fontColorAlpha = 1.0f;
    record.xOffset = record.yOffset = 0;
    record.angle = 45;
    record.xPos = record.yPos = 0;
    record.scale = 100;
    record.density = 25;
    record.units = units;
}

OffsetBounds OffsetBoundsForPage(double paperWidth, double paperHeight, int units)
{
    const double perInch = units == kMillimetres ? 25.4 : 10.0;
    return {int(paperWidth / 72 * perInch * 0.5), int(paperHeight / 72 * perInch * 0.5)};
}

WatermarkEditorModel::WatermarkEditorModel(_WatermarkData& record) : m_record(record)
{
    if (m_record.textString.empty() && m_record.filename.empty()) {
        setDefaultValues(m_record, LastUnits());
        m_record.isText = 1;
    } else {
        m_record.isText = m_record.textString.empty() ? 0 : 1;
    }
    if (!(m_record.paperWidth > 0 && m_record.paperHeight > 0)) {
        m_record.paperWidth = kLetterPaperSize.width();
        m_record.paperHeight = kLetterPaperSize.height();
    }
    if (m_record.units != kMillimetres)
        m_record.units = kTenthsOfAnInch;
    LastUnits() = m_record.units;
    const double perInch = FieldUnitsPerInch(m_record.units);
    m_values.angle = m_record.angle;
    m_values.scale = m_record.scale;
    m_values.density = m_record.density;
    m_values.xOffsetField = int(std::lround(m_record.xOffset * perInch));
    m_values.yOffsetField = int(std::lround(m_record.yOffset * perInch));
    m_values.text = m_record.textString.toString();
    m_values.pictureName = m_record.filename.toString();
    CreateMemoryConsumer(kPreviewBufferSize, m_preview);
    refreshPreview(true);
}

OffsetBounds WatermarkEditorModel::offsetBounds() const
{
    return OffsetBoundsForPage(m_record.paperWidth, m_record.paperHeight, m_record.units);
}

void WatermarkEditorModel::setTextMode(bool text)
{
    m_record.isText = text ? 1 : 0;
    refreshPreview(true);
}

void WatermarkEditorModel::setPicture(const QString& path)
{
    const QString name = path.section(QLatin1Char('/'), -1);
    if (!m_record.filePath.assignIfFits(QStringView(path)) ||
        !m_record.filename.assignIfFits(QStringView(name)))
        return;
    m_values.pictureName = name;
    refreshPreview(true);
}

void WatermarkEditorModel::setFont(const QString& postScriptName, int size)
{
    m_record.fontName.assignIfFits(QStringView(postScriptName));
    m_record.fontSize = size;
    refreshPreview(true);
}

void WatermarkEditorModel::setColor(std::uint16_t red, std::uint16_t green, std::uint16_t blue)
{
    m_record.wellColorRed = m_record.fontColorRed = red / 65535.0f;
    m_record.wellColorGreen = m_record.fontColorGreen = green / 65535.0f;
    m_record.wellColorBlue = m_record.fontColorBlue = blue / 65535.0f;
    m_record.wellColorAlpha = m_record.fontColorAlpha = 1.0f;
    refreshPreview(true);
}

void WatermarkEditorModel::setUnits(int units)
{
    units = units == kMillimetres ? kMillimetres : kTenthsOfAnInch;
    const double perInch = FieldUnitsPerInch(units);
    m_record.units = units;
    LastUnits() = units;
    const OffsetBounds bounds = offsetBounds();
    m_values.xOffsetField = std::clamp(int(std::lround(m_record.xOffset * perInch)),
                                       -bounds.horizontal, bounds.horizontal);
    m_values.yOffsetField =
        std::clamp(int(std::lround(m_record.yOffset * perInch)), -bounds.vertical, bounds.vertical);
    refreshPreview(true);
}

void WatermarkEditorModel::centre()
{
    m_values.xOffsetField = m_values.yOffsetField = 0;
    refreshPreview(true);
}

void WatermarkEditorModel::setText(const QString& text)
{
    m_values.text = text.left(kWatermarkTextFieldLimit);
    refreshPreview(false);
}

void WatermarkEditorModel::setAngle(int angle)
{
    m_values.angle = angle;
    refreshPreview(false);
}

void WatermarkEditorModel::setScale(int scale)
{
    m_values.scale = scale;
    refreshPreview(false);
}

void WatermarkEditorModel::setDensity(int density)
{
    m_values.density = density;
    refreshPreview(false);
}

void WatermarkEditorModel::setOffsets(int horizontalField, int verticalField)
{
    const OffsetBounds bounds = offsetBounds();
    m_values.xOffsetField = std::clamp(horizontalField, -bounds.horizontal, bounds.horizontal);
    m_values.yOffsetField = std::clamp(verticalField, -bounds.vertical, bounds.vertical);
    refreshPreview(false);
}

void WatermarkEditorModel::finish()
{
    refreshPreview(false);
    if (isText()) {
        m_record.filename.clear();
        m_record.filePath.clear();
    } else {
        m_record.textString.clear();
    }
}

bool WatermarkEditorModel::refreshPreview(bool force)
{
    const bool made = renderWatermarkIfNecessary(m_record, m_values, force, m_preview);
    if (made)
        ++m_previewVersion;
    return made;
}

} // namespace orvan
