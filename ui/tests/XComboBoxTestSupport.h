// Fixture of the combo-box tests: a history file of the test's own and box
// options over a small map.
#pragma once

#include "tests/support/TestData.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/SettingMapAccess.h"
#include "ui/XComboBoxModel.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvan::testing {

// Fixed items: rows up to the one whose value is 0; the row without a text is
// left out and the gate is not applied.
inline constexpr _SettingMap kCopiesMap[] = {
    {"PrinterDefault", 5, 0, nullptr, 0},        {"No Such Key", 6, 0, nullptr, 0},
    {"UseJobSetting", 7, 0, "NoSuchFeature", 1}, {"-", 0, 0, nullptr, 0},
    {"PrinterDefault", 9, 0, nullptr, 0},        {nullptr, 0, 0, nullptr, 0},
};

class XComboBoxFixture : public ::testing::Test
{
protected:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8()); }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    static void writeHistory(const QString& key, const PropertyValue& entries)
    {
        PropertyValue file =
            CopyUserPreferences(kInputHistoryFileName).value_or(PropertyValue::dictionary());
        file.insert(key, entries);
        ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));
    }
    static PropertyValue storedHistory(const QString& key)
    {
        return *CopyUserPreferences(kInputHistoryFileName)->find(key);
    }
    _XComboBoxOptions numberOptions(std::int32_t minimum, std::int32_t maximum) const
    {
        return {.kind = XComboBoxKind::Number,
                .bundle = &m_bundle,
                .map = kCopiesMap,
                .historyKey = "Copies",
                .minimum = minimum,
                .maximum = maximum};
    }
    // Two to six letters, three entries kept.
    _XComboBoxOptions textOptions(const QString& historyKey = "JobName") const
    {
        return {.bundle = &m_bundle,
                .map = kCopiesMap,
                .historyKey = historyKey,
                .historyLimit = 3,
                .firstLimit = 2,
                .secondLimit = 6,
                .allowedCharacters =
                    CharacterSetFromString("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")};
    }

    QTemporaryDir m_dir;
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

} // namespace orvan::testing
