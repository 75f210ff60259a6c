#include "fax/FaxOptions.h"
#include "fax/LANFaxSetupModel.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

using namespace orvan;

namespace {

const QString kLabel = QStringLiteral("Notes:");

PropertyValue written(const FaxOptionControls& controls, PropertyValue options = {})
{
    WriteFaxOptions(controls, kLabel, &options);
    return options;
}

} // namespace

TEST(FaxOptionsTest, WritesEveryKeyWithItsKind)
{
    FaxOptionControls c;
    c.confirmationSheet = kNoConfirmationSheet;
    c.sendSpeed = kSendSpeedSuperG3;
    c.resolution = kFaxResolutionSuperfine;
    c.sendLater = true;
    c.sendTime = QDateTime::fromSecsSinceEpoch(4102444800); // past 2038: needs 64 bits
    c.dialingPrefixOn = true;
    c.dialingPrefix = "9,";
    c.creditCardOn = true;
    c.creditCard = "4111";
    c.coverSheet = kPrintCoverSheet;
    c.coverSheetNotes = "Pages 1-3";
    c.promptDuplicate = false;
    const PropertyValue options = written(c);

    const struct
    {
        const char* key;
        PropertyValue value;
        std::optional<NumberType> type;
    } rows[] = {
        {"ConfirmationSheet", PropertyValue::boolean(false), {}},
        {"SendSpeed", PropertyValue::integer(3), NumberType::CFIndex},
        {"Resolution", PropertyValue::integer(3), NumberType::CFIndex},
        {"SendTime", PropertyValue::integer(4102444800), NumberType::SInt64},
        {"DialingPrefix", "9,", {}},
        {"CreditCard", "4111", {}},
        {"CoverSheetNotes", "Pages 1-3", {}},
        {"LocalizedNotesLabel", kLabel, {}},
        {"CoverSheet", PropertyValue::boolean(true), {}},
        {"PromptDuplicate", PropertyValue::boolean(false), {}},
        {"PromptRemove", PropertyValue::boolean(true), {}},
    };
    EXPECT_EQ(options.size(), std::size(rows));
    for (const auto& row : rows) {
        const PropertyValue* value = options.find(row.key);
        ASSERT_TRUE(value) << row.key;
        EXPECT_EQ(value->kind(), row.value.kind()) << row.key;
        EXPECT_EQ(*value, row.value) << row.key;
        EXPECT_EQ(value->numberType(), row.type) << row.key;
    }
    EXPECT_FALSE(options.contains(kFaxNewJobResolutionKey));
    EXPECT_EQ(ReadFaxOptions(options), c);
}

TEST(FaxOptionsTest, OptionalKeysComeAndGoWithTheirControls)
{
    FaxOptionControls earlier;
    earlier.sendLater = true;
    earlier.sendTime = QDateTime::fromSecsSinceEpoch(2000000000);
    earlier.dialingPrefixOn = earlier.creditCardOn = true;
    earlier.dialingPrefix = "9";
    earlier.creditCard = "4111";
    earlier.coverSheet = kPrintCoverSheet;
    earlier.coverSheetNotes = "Old notes";
    const PropertyValue before = written(earlier);

    const struct
    {
        const char* what;
        std::function<void(FaxOptionControls&)> change;
        QStringList present, absent;
    } rows[] = {
        {"send now", [](auto& c) { c.sendLater = false; }, {}, {"SendTime"}},
        {"prefix off keeps nothing typed",
         [](auto& c) { c.dialingPrefixOn = false; },
         {},
         {"DialingPrefix"}},
        {"credit card off", [](auto& c) { c.creditCardOn = false; }, {}, {"CreditCard"}},
        {"notes emptied: notes stay, label goes",
         [](auto& c) { c.coverSheetNotes.clear(); },
         {"CoverSheetNotes"},
         {"LocalizedNotesLabel"}},
        {"cover sheet off touches neither",
         [](auto& c) {
             c.coverSheet = kNoCoverSheet;
             c.coverSheetNotes.clear();
         },
         {"CoverSheetNotes", "LocalizedNotesLabel"},
         {}},
    };
    for (const auto& row : rows) {
        FaxOptionControls c = earlier;
        row.change(c);
        const PropertyValue after = written(c, before);
        for (const QString& key : row.present)
            EXPECT_TRUE(after.contains(key)) << row.what << ": " << key.toStdString();
        for (const QString& key : row.absent)
            EXPECT_FALSE(after.contains(key)) << row.what << ": " << key.toStdString();
    }
    EXPECT_EQ(written(earlier, before).find("CoverSheetNotes")->toString(), "Old notes");
}

TEST(FaxOptionsTest, NewDictionaryShowsDefaults)
{
    const FaxOptionControls shown = ReadFaxOptions(PropertyValue::dictionary());
    EXPECT_EQ(shown, FaxOptionControls{});
    PropertyValue odd = PropertyValue::dictionary();
    odd.insert("SendSpeed", PropertyValue::integer(9));
    odd.insert("Resolution", "Fine");
    EXPECT_EQ(ReadFaxOptions(odd), FaxOptionControls{});
}

TEST(FaxOptionsTest, SetupRefusesWhatCannotBeSent)
{
    QTemporaryDir dir;
    FaxRecipientList job;
    auto ann = std::make_shared<FaxRecipient>("Ann", "Lee", "+1 (555) 123-4567");
    job.append(ann);
    LANFaxSetupModel model(nullptr, PropertyValue::dictionary(), job, AddressBook(dir.path()));

    const QString longest(kMaxDialingStringLength, u'5');
    const struct
    {
        QString number;
        QString prefix;
        bool refused;
    } rows[] = {
        {"", {}, true},
        {"fax me", {}, true}, // nothing to dial
        {longest, {}, false},
        {longest, "9,", true}, // the prefix counts
        {"555 0100", "9,", false},
    };
    for (const auto& row : rows) {
        model.controls().dialingPrefixOn = !row.prefix.isEmpty();
        model.controls().dialingPrefix = row.prefix;
        const auto typed = LANFaxSetupModel::recipientFromTypedName("Bo", row.number);
        EXPECT_EQ(model.checkRecipient(*typed).has_value(), row.refused)
            << row.number.toStdString();
    }
    model.controls().dialingPrefixOn = false;

    // Duplicates are asked about only while the prompt is on.
    const auto again = LANFaxSetupModel::recipientFromTypedName(" Ann  Lee ", "+1 (555) 123-4567");
    EXPECT_TRUE(model.duplicateQuestion(*again));
    EXPECT_FALSE(
        model.duplicateQuestion(*LANFaxSetupModel::recipientFromTypedName("Lee, Ann", "1")));
    model.controls().promptDuplicate = false;
    EXPECT_FALSE(model.duplicateQuestion(*again));

    const QDateTime now = QDateTime::currentDateTime();
    model.controls().sendLater = true;
    model.controls().sendTime = now.addSecs(-60);
    EXPECT_TRUE(model.checkBeforeOK(now));
    model.controls().sendTime = now.addSecs(600);
    EXPECT_FALSE(model.checkBeforeOK(now));

    // Edits stay in the model until commit: the job's record is not touched.
    auto edited = std::make_shared<FaxRecipient>(*ann);
    edited->setFaxNumber("555 0000");
    model.replaceRecipient(0, edited);
    EXPECT_EQ(ann->faxNumber(), "+1 (555) 123-4567");
    EXPECT_EQ(job.recipientAtIndex(0), ann);
    PropertyValue options;
    model.commit(&options, &job);
    EXPECT_EQ(job.recipientAtIndex(0), edited);
    EXPECT_EQ(options.find("SendTime")->numberType(), NumberType::SInt64);
}
