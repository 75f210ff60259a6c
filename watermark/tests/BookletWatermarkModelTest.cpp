// The panel's and the editor's models on a private watermark file: the menu
// and the shared list through New / Edit / Delete, the ticket keys both ways,
// and the editor's defaults, ranges and redraw rule.
#include "watermark/tests/WatermarkTestSupport.h"

#include "settings/Bundle.h"
#include "settings/PageFormat.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"
#include "watermark/BookletWatermarkModel.h"
#include "watermark/WatermarkEditorModel.h"
#include "watermark/WatermarkList.h"
#include "watermark/WatermarkTicket.h"

using namespace orvan;
using namespace orvan::test;

namespace {

class BookletWatermarkModelTest : public WatermarkFileTest
{
protected:
    void SetUp() override
    {
        WatermarkFileTest::SetUp();
        m_bundle = std::make_unique<Bundle>(ORVAN_PLUGIN_DIR);
        model.load(m_bundle.get(), kWatermarkFile);
    }

    QStringList menuTexts() const
    {
        QStringList texts;
        for (const MenuItem& item : model.watermarkMenu().items())
            texts << (item.separator ? QStringLiteral("-") : item.text);
        return texts;
    }
    int itemNamed(const QString& name) const
    {
        const auto& items = model.watermarkMenu().items();
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i].text == name)
                return int(i) + 1;
        return 0;
    }
    // What the editor returns for a new text watermark.
    void addText(const char* text)
    {
        _WatermarkData record = model.newRecord();
        WatermarkEditorModel editor(record);
        editor.setText(QString::fromUtf8(text));
        editor.finish();
        model.addWatermark(record);
    }

    std::unique_ptr<Bundle> m_bundle;
    BookletWatermarkModel model;
};

TEST_F(BookletWatermarkModelTest, MenuHoldsTheSavedWatermarksBetweenNoneAndTheSeparator)
{
    EXPECT_EQ(menuTexts(), QStringList({"No Watermark", "Draft", "Confidential", "Copy", "-",
                                        "Options", "New…", "Edit…", "Delete"}));
    // Each saved item carries its list index.
    EXPECT_EQ(model.watermarkMenu().item(4)->referenceValue, 2);
    EXPECT_EQ(model.selectedName(), QString());
    // The page-one key is looked up with its own spelling.
    EXPECT_EQ(model.optionsMenu().item(6)->text, "Print on First Page Only");
    model.chooseOptionsItem(1);
    model.chooseOptionsItem(6);
    std::vector<bool> marks;
    for (int item = 1; item <= model.optionsMenu().count(); ++item)
        marks.push_back(model.isMarked(item));
    EXPECT_EQ(marks, std::vector<bool>({true, false, false, false, false, true}));

    // The summary names a chosen watermark and its options, else nothing.
    PropertyValue titles, values;
    model.appendSummary(m_bundle.get(), &titles, &values);
    EXPECT_TRUE(values.isNull());
    model.chooseWatermarkItem(2);
    model.appendSummary(m_bundle.get(), &titles, &values);
    QStringList texts;
    for (const PropertyValue& value : values.asArray())
        texts << value.toString();
    EXPECT_EQ(texts, QStringList({"Draft", "Background", "Print on First Page Only"}));
}

TEST_F(BookletWatermarkModelTest, ReadsTheTicket)
{
    struct Row
    {
        std::optional<QString> name;
        std::optional<int> option, firstPageOnly;
        QString selected;
        std::int32_t expectedOption, expectedPages;
    };
    const Row rows[] = {
        {"draft", {}, {}, "Draft", 2, kAllPagesChoice},
        {"COPY", 3, 0, "Copy", 3, kAllPagesChoice},
        {"Copy", 1, 7, "Copy", 1, kFirstPageOnlyChoice},
        {"Unknown", {}, 1, "", 2, kFirstPageOnlyChoice},
        {{}, {}, {}, "", 2, kAllPagesChoice},
    };
    for (const Row& row : rows) {
        Ticket ticket;
        if (row.name)
            ticket.setItem(kPanelClient, kWatermarkTicketKey, PropertyValue(*row.name));
        if (row.option)
            ticket.setItem(kPanelClient, kWatermarkOptionTicketKey,
                           PropertyValue::integer(*row.option, NumberType::SInt32));
        if (row.firstPageOnly)
            ticket.setItem(kPanelClient, kWatermarkFirstPageOnlyTicketKey,
                           PropertyValue::integer(*row.firstPageOnly, NumberType::SInt32));
        model.syncFromTicket(ticket);
        EXPECT_EQ(model.selectedName(), row.selected) << row.name.value_or("-").toStdString();
        EXPECT_EQ(model.option(), row.expectedOption);
        EXPECT_EQ(model.pageChoice(), row.expectedPages);
    }
}

TEST_F(BookletWatermarkModelTest, PaperSizeComesFromThePageFormatWithLetterAsFallback)
{
    PrintSession session;
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(model.paperSize(), QSizeF(612, 792));
    WritePaperToPageFormat(session.pageFormat(), kPanelClient, "iso-a4", QSizeF(595, 842));
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(model.paperSize(), QSizeF(595, 842));
    EXPECT_EQ(model.newRecord().paperWidth, 595);
}

TEST_F(BookletWatermarkModelTest, NewEditAndDeleteKeepMenuListAndFileInStep)
{
    // A name that exists already gets a second entry; its record is replaced.
    addText("Internal");
    addText("Draft");
    EXPECT_EQ(listOfWatermarks(),
              QStringList({"Draft", "Confidential", "Copy", "Internal", "Draft"}));
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), listOfWatermarks());
    EXPECT_EQ(menuTexts().mid(1, 6),
              QStringList({"Draft", "Confidential", "Copy", "Internal", "Draft", "-"}));
    EXPECT_EQ(model.selectedItem(), 6);

    // Edit renames in place: same list position, old record gone.
    ASSERT_EQ(model.chooseWatermarkItem(itemNamed("Internal")), WatermarkPanelAction::None);
    ASSERT_EQ(model.chooseWatermarkItem(itemNamed("Edit…")), WatermarkPanelAction::RunEditEditor);
    _WatermarkData record;
    ASSERT_TRUE(model.loadSelectedForEdit(record));
    EXPECT_EQ(record.paperHeight, 792);
    {
        WatermarkEditorModel editor(record);
        editor.setText("Internal Only");
        editor.finish();
    }
    model.replaceSelected(record);
    EXPECT_EQ(listOfWatermarks().value(3), "Internal Only");
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), listOfWatermarks());
    EXPECT_EQ(model.selectedName(), "Internal Only");
    _WatermarkData old;
    EXPECT_FALSE(loadWatermarkData(kWatermarkFile, "Internal", old));

    // The selection in the ticket, then Delete: "NoWatermark" and, at the
    // next write, only the name leaves the ticket.
    Ticket ticket;
    model.chooseOptionsItem(3);
    ASSERT_EQ(model.syncToTicket(ticket), kNoError);
    EXPECT_EQ(ticket.string(kWatermarkTicketKey), "Internal Only");
    ASSERT_EQ(model.chooseWatermarkItem(itemNamed("Delete")), WatermarkPanelAction::ConfirmDelete);
    model.deleteSelected();
    EXPECT_EQ(model.selectedItem(), 1);
    EXPECT_FALSE(listOfWatermarks().contains("Internal Only"));
    EXPECT_FALSE(loadWatermarkList(kWatermarkFile)->contains("Internal Only"));
    ASSERT_EQ(model.syncToTicket(ticket), kNoError);
    EXPECT_FALSE(ticket.containsItem(kWatermarkTicketKey));
    EXPECT_EQ(ticket.integer(kWatermarkOptionTicketKey), 3);

    // With "NoWatermark" selected Edit and Delete do nothing; New still runs.
    EXPECT_EQ(model.chooseWatermarkItem(itemNamed("Edit…")), WatermarkPanelAction::None);
    EXPECT_EQ(model.chooseWatermarkItem(itemNamed("Delete")), WatermarkPanelAction::None);
    EXPECT_FALSE(model.loadSelectedForEdit(record));
    EXPECT_EQ(model.chooseWatermarkItem(itemNamed("New…")), WatermarkPanelAction::RunNewEditor);
}

TEST(WatermarkEditorModel, OffsetBoundsFollowThePage)
{
    struct Row
    {
        double width, height;
        int units;
        OffsetBounds bounds;
    };
    const Row rows[] = {
        {612, 792, kTenthsOfAnInch, {42, 55}},
        {612, 792, kMillimetres, {107, 139}},
        {595, 842, kTenthsOfAnInch, {41, 58}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(OffsetBoundsForPage(row.width, row.height, row.units), row.bounds);
}

TEST(WatermarkEditorModel, NewRecordDefaultsColourAndRedrawRule)
{
    _WatermarkData record;
    record.paperWidth = 612;
    record.paperHeight = 792;
    WatermarkEditorModel editor(record);
    EXPECT_EQ(record.fontName.toString(), "ArialMT");
    EXPECT_EQ(std::tuple(record.fontSize, record.angle, record.scale, record.density),
              std::tuple(72, 45, 100, 25));
    EXPECT_EQ(record.wellColorBlue, 1.0f);
    EXPECT_TRUE(editor.isText() && editor.angleEnabled() && !editor.scaleEnabled());

    // Values redraw only when they change; commands always do.
    const std::uint64_t drawn = editor.previewVersion();
    editor.setAngle(45);
    EXPECT_EQ(editor.previewVersion(), drawn);
    editor.setAngle(90);
    EXPECT_EQ(editor.previewVersion(), drawn + 1);
    editor.centre();
    EXPECT_EQ(editor.previewVersion(), drawn + 2);

    editor.setColor(65535, 32768, 0);
    EXPECT_EQ(record.fontColorRed, 1.0f);
    EXPECT_FLOAT_EQ(record.wellColorGreen, 32768 / 65535.0f);
    EXPECT_EQ(std::pair(record.wellColorAlpha, record.fontColorAlpha), std::pair(1.0f, 1.0f));

    // Offsets keep their place across units and stay in the page.
    editor.setOffsets(20, 99);
    EXPECT_EQ(std::pair(editor.values().xOffsetField, editor.values().yOffsetField),
              std::pair(20, 55));
    editor.setUnits(kMillimetres);
    EXPECT_EQ(editor.values().xOffsetField, 51);
    EXPECT_EQ(editor.offsetBounds(), (OffsetBounds{107, 139}));

    // A picture watermark is named by its file and drops the text on OK.
    editor.setTextMode(false);
    editor.setPicture("/tmp/logo.png");
    editor.finish();
    EXPECT_EQ(WatermarkKey(record), "logo.png");
    EXPECT_TRUE(record.textString.empty());
}

} // namespace
