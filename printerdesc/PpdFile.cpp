#include "printerdesc/PpdFile.h"

#include <QFile>

// libcups marks its PPD interface deprecated; it is the interface we use, and
// this file is the only one that calls it.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/cups.h>
#include <cups/ppd.h>

namespace orvan {

void PpdFileCloser::operator()(ppd_file_t* ppd) const
{
    ppdClose(ppd);
}

PpdFilePtr OpenPPDFile(const QString& path, QString* error)
{
    if (path.isEmpty()) {
        if (error)
            *error = QStringLiteral("no file");
        return nullptr;
    }
    PpdFilePtr ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!ppd && error) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        // libcups counts no line for a file it could not start reading.
        const QString reason = QString::fromUtf8(ppdErrorString(status));
        *error = line > 0 ? QStringLiteral("line %1: %2").arg(line).arg(reason) : reason;
    }
    return ppd;
}

std::optional<std::vector<PpdChoice>> PpdOptionChoices(ppd_file_t* ppd, const QByteArray& keyword)
{
    ppd_option_t* option = ppd ? ppdFindOption(ppd, keyword.constData()) : nullptr;
    if (!option)
        return std::nullopt;
    std::vector<PpdChoice> choices;
    choices.reserve(static_cast<std::size_t>(option->num_choices));
    for (int i = 0; i < option->num_choices; ++i)
        choices.push_back(
            {QByteArray(option->choices[i].choice), QByteArray(option->choices[i].text)});
    return choices;
}

std::optional<QByteArray> PpdDefaultChoice(ppd_file_t* ppd, const QByteArray& keyword)
{
    ppd_option_t* option = ppd ? ppdFindOption(ppd, keyword.constData()) : nullptr;
    if (!option)
        return std::nullopt;
    return QByteArray(option->defchoice);
}

std::optional<QByteArray> PpdChoiceText(ppd_file_t* ppd, const QByteArray& keyword,
                                        const QByteArray& choice)
{
    ppd_option_t* option = ppd ? ppdFindOption(ppd, keyword.constData()) : nullptr;
    ppd_choice_t* found = option ? ppdFindChoice(option, choice.constData()) : nullptr;
    if (!found)
        return std::nullopt;
    return QByteArray(found->text);
}

void PpdMarkDefaults(ppd_file_t* ppd)
{
    if (ppd)
        ppdMarkDefaults(ppd);
}

int PpdMarkOption(ppd_file_t* ppd, const QByteArray& keyword, const QByteArray& choice)
{
    if (!ppd)
        return 0;
    return ppdMarkOption(ppd, keyword.constData(), choice.constData());
}

std::optional<QByteArray> PpdMarkedChoice(ppd_file_t* ppd, const QByteArray& keyword)
{
    ppd_choice_t* marked = ppd ? ppdFindMarkedChoice(ppd, keyword.constData()) : nullptr;
    if (!marked)
        return std::nullopt;
    return QByteArray(marked->choice);
}

std::optional<std::vector<std::pair<QByteArray, QByteArray>>>
PpdMarkedChoicesInGroup(ppd_file_t* ppd, const QByteArray& group)
{
    if (!ppd)
        return std::nullopt;
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t& candidate = ppd->groups[g];
        if (group != candidate.name)
            continue;
        std::vector<std::pair<QByteArray, QByteArray>> marked;
        for (int o = 0; o < candidate.num_options; ++o) {
            const ppd_option_t& option = candidate.options[o];
            for (int c = 0; c < option.num_choices; ++c) {
                if (option.choices[c].marked) {
                    marked.emplace_back(QByteArray(option.keyword),
                                        QByteArray(option.choices[c].choice));
                    break;
                }
            }
        }
        return marked;
    }
    return std::nullopt;
}

QByteArray PpdLanguageEncodingEntry(ppd_file_t* ppd)
{
    ppd_attr_t* entry = ppd ? ppdFindAttr(ppd, "LanguageEncoding", nullptr) : nullptr;
    return entry && entry->value ? QByteArray(entry->value) : QByteArray();
}

QByteArray PpdManufacturer(ppd_file_t* ppd)
{
    return ppd && ppd->manufacturer ? QByteArray(ppd->manufacturer) : QByteArray();
}

std::optional<PpdCustomSizeLimits> PpdCustomLimits(ppd_file_t* ppd)
{
    if (!ppd || !ppd->variable_sizes)
        return std::nullopt;
    return PpdCustomSizeLimits{ppd->custom_min[0], ppd->custom_min[1], ppd->custom_max[0],
                               ppd->custom_max[1]};
}

std::vector<PpdPageSize> PpdPageSizes(ppd_file_t* ppd)
{
    std::vector<PpdPageSize> sizes;
    if (!ppd)
        return sizes;
    ppd_option_t* option = ppdFindOption(ppd, "PageSize");
    const QByteArray defaultChoice = option ? QByteArray(option->defchoice) : QByteArray();
    for (int i = 0; i < ppd->num_sizes; ++i) {
        const ppd_size_t& size = ppd->sizes[i];
        const QByteArray keyword(size.name);
        if (keyword == "Custom" || size.width <= 0 || size.length <= 0)
            continue;
        ppd_choice_t* choice = option ? ppdFindChoice(option, size.name) : nullptr;
        PpdPageSize entry{keyword, choice ? QByteArray(choice->text) : keyword, size.width,
                          size.length};
        if (keyword == defaultChoice)
            sizes.insert(sizes.begin(), std::move(entry));
        else
            sizes.push_back(std::move(entry));
    }
    return sizes;
}

std::optional<QString> FetchQueuePPDFile(const QString& queueName, QString* error)
{
    const char* path = cupsGetPPD2(CUPS_HTTP_DEFAULT, queueName.toUtf8().constData());
    if (!path) {
        if (error)
            *error = QStringLiteral("the queue %1 has no PPD (%2)")
                         .arg(queueName, QString::fromUtf8(cupsLastErrorString()));
        return std::nullopt;
    }
    return QFile::decodeName(path);
}

} // namespace orvan
