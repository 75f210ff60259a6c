#include "platform/SystemFacts.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <netinet/in.h>
#include <pwd.h>
#include <unistd.h>

#include <memory>
#include <vector>

namespace orvan {

std::optional<QString> SessionUserName()
{
    long size = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(size > 0 ? static_cast<size_t>(size) : 16384);
    passwd entry{};
    passwd* result = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &result) != 0 || !result ||
        !result->pw_name || !*result->pw_name)
        return std::nullopt;
    return QString::fromLocal8Bit(result->pw_name);
}

std::optional<QString> prettyHostNameFromMachineInfo(const QString& text)
{
    for (const QString& rawLine : text.split(QLatin1Char('\n'))) {
        const QString line = rawLine.trimmed();
        if (!line.startsWith(QLatin1String("PRETTY_HOSTNAME=")))
            continue;
        QString value = line.mid(16).trimmed();
        if (value.size() >= 2 &&
            (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\'')) &&
            value.back() == value.front())
            value = value.mid(1, value.size() - 2);
        if (!value.isEmpty())
            return value;
    }
    return std::nullopt;
}

std::optional<QString> ComputerName()
{
    QFile info(QStringLiteral("/etc/machine-info"));
    if (info.open(QIODevice::ReadOnly))
        if (auto pretty = prettyHostNameFromMachineInfo(QString::fromUtf8(info.readAll())))
            return pretty;
    char name[256] = {};
    if (gethostname(name, sizeof name - 1) != 0 || !name[0])
        return std::nullopt;
    return QString::fromLocal8Bit(name);
}

std::optional<QString> defaultRouteInterface(const QString& routeTable)
{
    // Columns: Iface Destination Gateway Flags ... Mask; destination and mask
    // 00000000 with the route up (flag 0x1) is the default route.
    const QStringList lines = routeTable.split(QLatin1Char('\n'));
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QStringList fields =
            lines[i].split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
        if (fields.size() < 8)
            continue;
        bool ok = false;
        const unsigned flags = fields[3].toUInt(&ok, 16);
        if (fields[1] == QLatin1String("00000000") && fields[7] == QLatin1String("00000000") &&
            ok && (flags & 1))
            return fields[0];
    }
    return std::nullopt;
}

std::optional<QString> PrimaryIPv4Address()
{
    QFile routes(QStringLiteral("/proc/net/route"));
    if (!routes.open(QIODevice::ReadOnly))
        return std::nullopt;
    const auto interface = defaultRouteInterface(QString::fromLatin1(routes.readAll()));
    if (!interface)
        return std::nullopt;
    ifaddrs* raw = nullptr;
    if (getifaddrs(&raw) != 0)
        return std::nullopt;
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs*)> addresses(raw, freeifaddrs);
    for (const ifaddrs* a = raw; a; a = a->ifa_next) {
        if (!a->ifa_addr || a->ifa_addr->sa_family != AF_INET ||
            *interface != QLatin1String(a->ifa_name))
            continue;
        char text[INET_ADDRSTRLEN] = {};
        const auto* in = reinterpret_cast<const sockaddr_in*>(a->ifa_addr);
        if (inet_ntop(AF_INET, &in->sin_addr, text, sizeof text))
            return QString::fromLatin1(text);
    }
    return std::nullopt;
}

} // namespace orvan
