// Draws a stock's picture: the images StockIconImageNames chooses, read from
// the bundle, each over the previous one.
#pragma once

#include "stock/Stock.h"

#include <QImage>
#include <QSize>
#include <QStringList>
#include <QWidget>

namespace orvan {

class Bundle;

// The named images drawn in order into a transparent image of that size,
// each scaled to fit and centred. A missing image is left out (with a
// "DEBUG: " line on stderr).
QImage RenderStockIcon(const Bundle* bundle, const QStringList& imageNames, QSize size);

// The icon control of a stock button ("StockIcon"). It shows the stock it is
// given (not owned) and redraws on update().
class StockIconView : public QWidget
{
    Q_OBJECT

public:
    explicit StockIconView(const Bundle* bundle, QWidget* parent = nullptr);

    void setStock(const Stock* stock);
    const Stock* stock() const { return m_stock; }
    // The images the next paint draws; empty without a stock.
    QStringList imageNames() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Bundle* m_bundle;
    const Stock* m_stock = nullptr;
};

} // namespace orvan
