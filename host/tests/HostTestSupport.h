// Fixtures shared by the host's tests: the sample printer's PPD and small
// PostScript documents whose pages can be told apart in a job's output.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <ostream>

namespace orvan::testing {

inline QString SamplePpdPath()
{
    return QStringLiteral(ORVAN_PLUGIN_DIR "/Resources/ppd/Orvan-Meridian-5000.ppd");
}

// The text page n of a document made by WritePostScriptDocument shows.
inline QByteArray PageMarker(int page)
{
    return QByteArrayLiteral("(orvan test page ") + QByteArray::number(page) + ')';
}

// A DSC-conforming PostScript document of the given number of pages.
inline bool WritePostScriptDocument(const QString& path, int pages)
{
    QByteArray text = "%!PS-Adobe-3.0\n%%Pages: " + QByteArray::number(pages) +
                      "\n%%BoundingBox: 0 0 612 792\n%%EndComments\n%%EndProlog\n";
    for (int page = 1; page <= pages; ++page)
        text += "%%Page: " + QByteArray::number(page) + ' ' + QByteArray::number(page) +
                "\n/Helvetica findfont 20 scalefont setfont 72 700 moveto " + PageMarker(page) +
                " show showpage\n";
    text += "%%Trailer\n%%EOF\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace orvan::testing

// GoogleTest shows QStrings as text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
