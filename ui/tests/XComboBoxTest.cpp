#include "ui/XComboBox.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

constexpr _SettingMap kNameMap[] = {
    {"UseJobSetting", 7, 0, nullptr, 0},
    {nullptr, 0, 0, nullptr, 0},
};

class XComboBoxTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8());
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    _XComboBoxOptions numberOptions(std::int32_t minimum, std::int32_t maximum) const
    {
        _XComboBoxOptions options;
        options.kind = XComboBoxKind::Number;
        options.bundle = &m_bundle;
        options.map = kNameMap;
        options.historyKey = "Copies";
        options.minimum = minimum;
        options.maximum = maximum;
        return options;
    }
    _XComboBoxOptions textOptions() const
    {
        _XComboBoxOptions options;
        options.bundle = &m_bundle;
        options.map = kNameMap;
        options.historyKey = "JobName";
        options.historyLimit = 2;
        options.secondLimit = 10;
        return options;
    }
    static void typeInto(QComboBox& box, const QString& text)
    {
        box.lineEdit()->clear();
        QTest::keyClicks(box.lineEdit(), text);
    }

    QTemporaryDir m_dir;
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

} // namespace

TEST_F(XComboBoxTest, NumberBoxTakesDigitsUpToTheMaximumsLength)
{
    const std::tuple<std::int32_t, const char*, const char*> rows[] = {
        {0, "12345678901", "123456789"},
        {-1, "1x2345678901", "123456789"},
        {9999, "123456", "1234"},
    };
    for (const auto& [maximum, typed, shown] : rows) {
        QComboBox box;
        ASSERT_EQ(XComboBoxInitializeWithMapAndHistory(&box, numberOptions(0, maximum)), kNoError);
        typeInto(box, typed);
        EXPECT_EQ(box.currentText(), shown) << "maximum " << maximum;
    }
}

TEST_F(XComboBoxTest, LosingTheFocusClampsTheNumber)
{
    QComboBox box;
    XComboBoxInitializeWithMapAndHistory(&box, numberOptions(1, 500));
    EXPECT_TRUE(box.isEditable());
    EXPECT_EQ(box.currentText(), "");
    typeInto(box, "999");
    QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(box.lineEdit(), &focusOut);
    EXPECT_EQ(box.currentText(), "500");

    // Reading validates too, and shows the clamped value.
    typeInto(box, "0");
    PropertyValue value;
    EXPECT_EQ(XComboBoxCopyValue(&box, value), kNoError);
    EXPECT_EQ(value, PropertyValue::integer(1));
    EXPECT_EQ(box.currentText(), "1");

    // The fixed item reads as its ticket value, an empty box as "no value".
    box.setCurrentIndex(0);
    EXPECT_EQ(XComboBoxCopyValue(&box, value), kNoError);
    EXPECT_EQ(value, PropertyValue::integer(7));
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
    EXPECT_EQ(XComboBoxSetValue(&plain, PropertyValue("x")), kBadParameter);
    EXPECT_EQ(XComboBoxCopyValue(&plain, value), kBadParameter);
    EXPECT_EQ(XComboBoxCopyValue(nullptr, value), kBadParameter);
    EXPECT_EQ(XComboBoxInitializeWithMapAndHistory(nullptr, textOptions()), kNoError);
}

// What is recorded, and how, is the model's (see its tests); the box records
// its text on finalising with the save flag only, and drops its context.
TEST_F(XComboBoxTest, FinalisingWithSaveRecordsTheText)
{
    const auto history = [] {
        return *CopyUserPreferences(kInputHistoryFileName)->find("JobName");
    };
    PropertyValue file = PropertyValue::dictionary();
    file.insert("JobName", PropertyValue(PropertyArray{PropertyValue("Memo")}));
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));
    for (bool save : {false, true}) {
        QComboBox box;
        XComboBoxInitializeWithMapAndHistory(&box, textOptions());
        typeInto(box, "Letter");
        XComboBoxFinalize(&box, save);
        EXPECT_EQ(XComboBoxModelOf(&box), nullptr);
        EXPECT_EQ(history(), save ? PropertyValue(PropertyArray{PropertyValue("Letter"),
                                                                PropertyValue("Memo")})
                                  : PropertyValue(PropertyArray{PropertyValue("Memo")}));
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
    EXPECT_EQ(XComboBoxModelOf(&box)->options().kind, XComboBoxKind::Number);
    EXPECT_EQ(box.findChildren<QObject*>(Qt::FindDirectChildrenOnly).size(), children);
    EXPECT_EQ(box.lineEdit()->findChildren<QValidator*>().size(), 1);
    typeInto(box, "1234");
    EXPECT_EQ(box.currentText(), "12");
}
