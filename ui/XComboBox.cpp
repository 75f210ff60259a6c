#include "ui/XComboBox.h"

#include "ui/InputLimitValidator.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

namespace orvan {

namespace detail {

// Carries a box's model as a child of the box, so it goes with the box, and
// validates the text when the box or its field loses the keyboard focus.
class XComboBoxContext : public QObject
{
    Q_OBJECT

public:
    XComboBoxContext(QComboBox* box, const _XComboBoxOptions& options)
        : QObject(box), model(options)
    {
        box->installEventFilter(this);
        if (box->lineEdit())
            box->lineEdit()->installEventFilter(this);
    }

    static void validate(QComboBox* box, const XComboBoxModel& model)
    {
        if (const auto replacement = model.validatedText(box->currentText()))
            box->setEditText(*replacement);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut) {
            if (auto* box = qobject_cast<QComboBox*>(parent()))
                validate(box, model);
        }
        return QObject::eventFilter(watched, event); // the event goes on
    }

    XComboBoxModel model;
};

} // namespace detail

namespace {

using detail::XComboBoxContext;

XComboBoxContext* contextOf(const QComboBox* box)
{
    return box ? box->findChild<XComboBoxContext*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

} // namespace

Status XComboBoxInitializeWithMapAndHistory(QComboBox* box, const _XComboBoxOptions& options)
{
    if (!box)
        return kNoError;
    delete contextOf(box);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert); // entries reach the list through the history only
    box->clear();
    auto* context = new XComboBoxContext(box, options);
    const XComboBoxModel& model = context->model;
    box->addItems(model.items());
    const InputLimits& limits = model.inputLimits();
    LimitInputLengthAndCharacters(box, limits.firstLimit, limits.secondLimit, limits.allowed);
    box->setCurrentIndex(-1);
    box->setEditText(QString());
    return kNoError;
}

Status XComboBoxCopyValue(QComboBox* box, PropertyValue& value)
{
    const XComboBoxContext* context = contextOf(box);
    if (!context)
        return kBadParameter;
    XComboBoxContext::validate(box, context->model);
    return context->model.copyValue(box->currentText(), value);
}

Status XComboBoxSetValue(QComboBox* box, const PropertyValue& value)
{
    const XComboBoxContext* context = contextOf(box);
    if (!context)
        return kBadParameter;
    const std::optional<QString> text = context->model.textForValue(value);
    if (!text)
        return kBadParameter;
    box->setEditText(*text);
    return kNoError;
}

void XComboBoxFinalize(QComboBox* box, bool save)
{
    XComboBoxContext* context = contextOf(box);
    if (!context)
        return;
    if (save)
        context->model.recordHistory(box->currentText());
    delete context;
}

const XComboBoxModel* XComboBoxModelOf(const QComboBox* box)
{
    const XComboBoxContext* context = contextOf(box);
    return context ? &context->model : nullptr;
}

} // namespace orvan

#include "XComboBox.moc"
