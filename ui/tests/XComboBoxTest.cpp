// The editable combo box as a widget: its input limits, clamping on leaving
// the field, showing and reading values, recording and setting up again. What
// is valid and what is recorded are the model's (see its tests).
#include "ui/XComboBox.h"
#include "ui/tests/XComboBoxTestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTest>

namespace orvan {
namespace {

class XComboBoxTest : public testing::XComboBoxFixture
{
protected:
    static void typeInto(QComboBox& box, const QString& text)
    {
        box.lineEdit()->clear();
        QTest::keyClicks(box.lineEdit(), text);
    }
};

TEST_F(XComboBoxTest, NumberBoxLimitsTypingAndClampsOnLeavingTheField)
{
    QComboBox box;
    ASSERT_EQ(XComboBoxInitializeWithMapAndHistory(&box, numberOptions(1, 500)), kNoError);
    EXPECT_TRUE(box.isEditable());
    EXPECT_EQ(box.currentText(), "");
    typeInto(box, "9x999");
    EXPECT_EQ(box.currentText(), "999");
    QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(box.lineEdit(), &focusOut);
    EXPECT_EQ(box.currentText(), "500");

    // Reading validates too, and shows the clamped value.
    typeInto(box, "0");
    PropertyValue value;
    EXPECT_EQ(XComboBoxCopyValue(&box, value), kNoError);
    EXPECT_EQ(value, PropertyValue::integer(1));
    EXPECT_EQ(box.currentText(), "1");
    box.setEditText("");
    EXPECT_EQ(XComboBoxCopyValue(&box, value), kXComboBoxEmpty);
}

TEST_F(XComboBoxTest, SettingAValueShowsItsText)
{
    QComboBox box;
    XComboBoxInitializeWithMapAndHistory(&box, numberOptions(1, 0));
    EXPECT_EQ(XComboBoxSetValue(&box, PropertyValue::integer(7)), kNoError);
    EXPECT_EQ(box.currentText(), "Use Job Setting");
    EXPECT_EQ(XComboBoxSetValue(&box, PropertyValue::integer(42)), kNoError);
    EXPECT_EQ(box.currentText(), "42");
    EXPECT_EQ(XComboBoxSetValue(&box, PropertyValue::boolean(true)), kBadParameter);
    EXPECT_EQ(box.currentText(), "42");

    QComboBox plain; // never set up
    PropertyValue value;
    EXPECT_EQ(XComboBoxSetValue(&plain, "x"), kBadParameter);
    EXPECT_EQ(XComboBoxCopyValue(&plain, value), kBadParameter);
    EXPECT_EQ(XComboBoxCopyValue(nullptr, value), kBadParameter);
    EXPECT_EQ(XComboBoxInitializeWithMapAndHistory(nullptr, textOptions()), kNoError);
}

// The box records its text on finalising with the save flag only, and drops
// its model.
TEST_F(XComboBoxTest, FinalisingWithSaveRecordsTheText)
{
    writeHistory("JobName", PropertyArray{"Memo"});
    for (bool save : {false, true}) {
        QComboBox box;
        XComboBoxInitializeWithMapAndHistory(&box, textOptions());
        typeInto(box, "Letter");
        XComboBoxFinalize(&box, save);
        EXPECT_EQ(XComboBoxModelOf(&box), nullptr);
        EXPECT_EQ(storedHistory("JobName"),
                  (save ? PropertyArray{"Letter", "Memo"} : PropertyArray{"Memo"}));
    }
}

TEST_F(XComboBoxTest, SettingUpAgainReplacesTheModel)
{
    QComboBox box;
    XComboBoxInitializeWithMapAndHistory(&box, textOptions());
    ASSERT_NE(XComboBoxModelOf(&box), nullptr);
    const auto children = box.findChildren<QObject*>(Qt::FindDirectChildrenOnly).size();
    XComboBoxInitializeWithMapAndHistory(&box, numberOptions(0, 99));
    ASSERT_NE(XComboBoxModelOf(&box), nullptr);
    EXPECT_EQ(box.findChildren<QObject*>(Qt::FindDirectChildrenOnly).size(), children);
    EXPECT_EQ(box.lineEdit()->findChildren<QValidator*>().size(), 1);
    typeInto(box, "1234");
    EXPECT_EQ(box.currentText(), "12");
}

} // namespace
} // namespace orvan
