#include "ui/DialogButtons.h"

#include "ui/Help.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include <cstdio>

namespace orvan {

QDialogButtonBox* NewOkCancelHelpButtons(QDialog* dialog, const Bundle* bundle,
                                         const QString& helpPage)
{
    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    buttons->button(QDialogButtonBox::Help)->setObjectName(QStringLiteral("HelpButton"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, dialog, [bundle, helpPage] {
        if (const Status status = DisplayHelp(bundle, helpPage, {}); status != kNoError)
            std::fprintf(stderr, "DEBUG: DisplayHelp(%s) failed (%d)\n", qPrintable(helpPage),
                         static_cast<int>(status));
    });
    return buttons;
}

} // namespace orvan
