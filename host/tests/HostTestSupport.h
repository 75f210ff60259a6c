// Fixtures shared by the host's tests: the sample printer's PPD, a private
// cupsd with a queue on it, and PostScript documents whose pages can be told
// apart in a job's output.
#pragma once

#include "host/tests/CupsServer.h"

#include <QFile>

#include <gtest/gtest.h>

#include <ostream>

namespace orvan::testing {

inline QString SamplePpdPath()
{
    return QStringLiteral(ORVAN_PLUGIN_DIR "/Resources/ppd/Orvan-Meridian-5000.ppd");
}

// A private cupsd with the file queue "Meridian" on the sample PPD. Skips the
// test when the machine has no cupsd: callers return when server is null.
inline void StartCupsWithSampleQueue(std::unique_ptr<CupsServer>& server)
{
    if (CupsServer::daemonPath().isEmpty())
        GTEST_SKIP() << "cupsd is not installed";
    QString why;
    server = CupsServer::start(&why);
    ASSERT_TRUE(server) << why.toStdString();
    ASSERT_TRUE(server->addFileQueue("Meridian", SamplePpdPath(), &why)) << why.toStdString();
}

// The text page n of a document made by WritePostScriptDocument shows.
inline QByteArray PageMarker(int page)
{
    return "(orvan test page " + QByteArray::number(page) + ')';
}

inline bool WritePostScriptDocument(const QString& path, int pages)
{
    QByteArray text = "%!PS-Adobe-3.0\n%%Pages: " + QByteArray::number(pages) +
                      "\n%%BoundingBox: 0 0 612 792\n%%EndComments\n%%EndProlog\n";
    for (int page = 1; page <= pages; ++page)
        text += "%%Page: " + QByteArray::number(page) + ' ' + QByteArray::number(page) +
                "\n/Helvetica findfont 20 scalefont setfont 72 700 moveto " + PageMarker(page) +
                " show showpage\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text + "%%Trailer\n%%EOF\n") > 0;
}

} // namespace orvan::testing

// GoogleTest shows QStrings as text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
