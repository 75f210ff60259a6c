#include "ui/InputLimitValidator.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

const CharacterSet kDigits = CharacterSetFromString(QStringLiteral("0123456789"));

} // namespace

TEST(InputField, TypedCharactersOutsideTheSetOrPastTheLimitAreRefused)
{
    QLineEdit field;
    LimitInputLengthAndCharacters(&field, 1, 4, kDigits);
    QTest::keyClicks(&field, "1a2b3-45");
    EXPECT_EQ(field.text(), "1234");

    // A full field refuses a character typed in its middle too.
    field.setCursorPosition(1);
    QTest::keyClicks(&field, "9");
    EXPECT_EQ(field.text(), "1234");
    EXPECT_EQ(field.cursorPosition(), 1);

    // After a deletion there is room again.
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, "9");
    EXPECT_EQ(field.text(), "1934");
}

TEST(InputField, PastedTextKeepsItsAllowedCharactersUpToTheLimit)
{
    QLineEdit field;
    LimitInputLengthAndCharacters(&field, 0, 6, kDigits);
    field.setText("1");
    field.setCursorPosition(1);
    QApplication::clipboard()->setText("2 a3-45678");
    field.paste();
    EXPECT_EQ(field.text(), "123456");

    // Pasting into the middle keeps the text after the insertion point.
    field.setText("19");
    field.setCursorPosition(1);
    QApplication::clipboard()->setText("x2345678");
    field.paste();
    EXPECT_EQ(field.text(), "123459");
}

TEST(InputField, LimitsAreReplacedAndCanBeRemoved)
{
    QLineEdit field;
    LimitInputLengthAndCharacters(&field, 2, 3, kDigits);
    ASSERT_TRUE(InputLimitsOf(&field));
    EXPECT_EQ(InputLimitsOf(&field)->secondLimit, 3);
    const QValidator* first = field.validator();

    // Limits below 1 and a null set remove every limit; the validator stays.
    LimitInputLengthAndCharacters(&field, 0, 0, std::nullopt);
    EXPECT_EQ(field.validator(), first);
    QTest::keyClicks(&field, "free text, any length");
    EXPECT_EQ(field.text(), "free text, any length");

    LimitInputLengthAndCharacters(static_cast<QLineEdit*>(nullptr), 1, 2, std::nullopt); // ignored
    EXPECT_FALSE(InputLimitsOf(nullptr));
}

TEST(InputField, ComboBoxListItemsPassWholeWhileTypingIsLimited)
{
    QComboBox box;
    box.setEditable(true);
    box.addItems({"Use Job Name"});
    LimitInputLengthAndCharacters(&box, 0, 4, kDigits);
    box.setCurrentIndex(0);
    EXPECT_EQ(box.currentText(), "Use Job Name");

    box.lineEdit()->clear();
    QTest::keyClicks(box.lineEdit(), "12a345");
    EXPECT_EQ(box.currentText(), "1234");
}
