#include "settings/TextEncoding.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <iconv.h>

#include <cerrno>
#include <memory>

namespace orvan {

namespace {

const char* iconvName(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::MacRoman:
        return "MACINTOSH";
    case TextEncoding::ISOLatin1:
        return "ISO-8859-1";
    case TextEncoding::ISOLatin2:
        return "ISO-8859-2";
    case TextEncoding::ISOLatin5:
        return "ISO-8859-9";
    case TextEncoding::ShiftJIS:
        return "SHIFT_JIS";
    case TextEncoding::UTF8:
        return "UTF-8";
    }
    return "UTF-8";
}

struct IconvCloser
{
    void operator()(void* cd) const { iconv_close(static_cast<iconv_t>(cd)); }
};
using IconvHandle = std::unique_ptr<void, IconvCloser>;

// Runs one whole conversion; nullopt on any invalid or unconvertible input.
std::optional<QByteArray> convert(const char* to, const char* from, QByteArrayView input)
{
    iconv_t raw = iconv_open(to, from);
    if (raw == reinterpret_cast<iconv_t>(-1))
        return std::nullopt;
    IconvHandle cd(raw);
    QByteArray out(input.size() * 4 + 16, Qt::Uninitialized);
    char* in = const_cast<char*>(input.data());
    size_t inLeft = static_cast<size_t>(input.size());
    char* dst = out.data();
    size_t outLeft = static_cast<size_t>(out.size());
    while (inLeft > 0) {
        if (iconv(raw, &in, &inLeft, &dst, &outLeft) == static_cast<size_t>(-1)) {
            if (errno != E2BIG)
                return std::nullopt;
            const qsizetype used = dst - out.data();
            out.resize(out.size() * 2);
            dst = out.data() + used;
            outLeft = static_cast<size_t>(out.size() - used);
        }
    }
    out.resize(dst - out.data());
    return out;
}

} // namespace

std::optional<QString> decodeText(QByteArrayView bytes, TextEncoding encoding)
{
    if (encoding == TextEncoding::UTF8 || encoding == TextEncoding::ISOLatin1) {
        QStringDecoder decoder(encoding == TextEncoding::UTF8 ? QStringConverter::Utf8
                                                              : QStringConverter::Latin1,
                               QStringConverter::Flag::Stateless);
        QString text = decoder.decode(bytes);
        if (decoder.hasError())
            return std::nullopt;
        return text;
    }
    const auto utf8 = convert("UTF-8", iconvName(encoding), bytes);
    if (!utf8)
        return std::nullopt;
    return QString::fromUtf8(*utf8);
}

std::optional<QByteArray> convertCharset(QByteArrayView bytes, const char* from, const char* to)
{
    return convert(to, from, bytes);
}

std::optional<QByteArray> encodeText(const QString& text, TextEncoding encoding)
{
    if (encoding == TextEncoding::UTF8)
        return text.toUtf8();
    return convert(iconvName(encoding), "UTF-8", text.toUtf8());
}

} // namespace orvan
