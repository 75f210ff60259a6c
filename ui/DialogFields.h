// Fields shared by the plug-in's small modal dialogs.
#pragma once

#include <QLineEdit>
#include <QString>

namespace orvan {

// A one-line text field holding `text`, taking at most `maximumLength`
// characters, found by tests under `objectName`.
inline QLineEdit* NewTextField(const QString& text, int maximumLength, const char* objectName,
                               QWidget* parent)
{
    auto* field = new QLineEdit(text, parent);
    field->setObjectName(QString::fromLatin1(objectName));
    field->setMaxLength(maximumLength);
    return field;
}

} // namespace orvan
