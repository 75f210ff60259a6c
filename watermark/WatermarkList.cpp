#include "watermark/WatermarkList.h"

#include "watermark/WatermarkStore.h"

namespace orvan {

QStringList& listOfWatermarks()
{
    static QStringList list;
    return list;
}

void LoadListOfWatermarks(const QString& file, const Bundle& bundle)
{
    std::optional<QStringList> loaded = loadWatermarkList(file);
    if (!loaded) {
        CreateDefaultWatermarks(file, bundle);
        loaded = loadWatermarkList(file);
    }
    QStringList& list = listOfWatermarks();
    list = loaded.value_or(QStringList());
    if (list.isEmpty())
        return;
    _WatermarkData first;
    loadWatermarkData(file, list.first(), first);
    if (first.textString.empty() && first.filename.empty())
        list.removeFirst();
}

qsizetype FindWatermark(const QString& name)
{
    const QStringList& list = listOfWatermarks();
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (list[i].compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

} // namespace orvan
