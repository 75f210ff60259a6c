// The Booklet/Watermark panel without its widgets: the watermark menu (the
// saved watermarks between "NoWatermark" and the separator), the options
// menu and its marks, New / Edit / Delete on the watermark file and the
// shared name list, the paper size, the preview document, and the job's
// watermark keys in the print-settings ticket.
//
// The preview document is drawn here, not in the view: drawing a text
// watermark writes its glyphs and origin back into the watermark file, and
// the font program written with the ticket needs them, with or without a
// display.
#pragma once

#include "settings/MenuModel.h"
#include "settings/PropertyValue.h"
#include "settings/Status.h"
#include "watermark/MemoryDocument.h"
#include "watermark/WatermarkData.h"

#include <QSizeF>
#include <QString>

#include <cstdint>
#include <optional>

namespace orvan {

class Bundle;
class PrintSession;
class Ticket;

inline const QString kBookletWatermarkTitleKey = QStringLiteral("BookletWatermarkPanelTitle");
inline const QString kWatermarkEditorTitleKey = QStringLiteral("Watermark Editor");
inline const QString kDeleteWatermarkHeaderKey = QStringLiteral("Delete Watermark Header");
inline const QString kDeleteWatermarkMessageKey = QStringLiteral("Delete Watermark Message");
inline const QString kYesCommandKey = QStringLiteral("Yes Command");
inline const QString kNoCommandKey = QStringLiteral("No Command");
inline const QString kWatermarkLabelKey = QStringLiteral("Watermark:");
inline const QString kBookletCreationButtonKey = QStringLiteral("Booklet Creation...");

// Watermark menu values (ticket values of its map rows).
inline constexpr std::int32_t kNoWatermarkValue = 1;
inline constexpr std::int32_t kWatermarkNewValue = -7;
inline constexpr std::int32_t kWatermarkEditValue = -8;
inline constexpr std::int32_t kWatermarkDeleteValue = -9;
// The command of the menu items that stand for saved watermarks; their
// reference value is their index in listOfWatermarks.
inline constexpr std::uint32_t kSavedWatermarkCommand = 0x576D726B; // 'Wmrk'
// Options menu values: how the watermark meets the page, and which pages.
inline constexpr std::int32_t kAllPagesChoice = 4;
inline constexpr std::int32_t kFirstPageOnlyChoice = 5;
// The paper when the page format names none: US Letter.
inline constexpr QSizeF kLetterPaperSize{612, 792};
// The preview buffer's first size; it grows as documents need.
inline constexpr std::size_t kPreviewBufferSize = 32768;

// Rebuilds `menu`: the rows of `map`, then the names of listOfWatermarks in
// list order after the first row and before the separator, each carrying
// kSavedWatermarkCommand and its index in the list.
void PopulateWatermarkMenuFromMapAndHistory(const Bundle* bundle, MenuModel& menu,
                                            const _SettingMap* map);

// What the view is to do after a menu choice.
enum class WatermarkPanelAction
{
    None,
    RunNewEditor,  // newRecord(), the editor, then addWatermark on OK
    RunEditEditor, // loadSelectedForEdit(), the editor, then replaceSelected on OK
    ConfirmDelete, // ask; deleteSelected() on yes
    RunBookletCreation,
};

class BookletWatermarkModel
{
public:
    // Panel set-up: loads the shared name list (making the first-use
    // watermarks when the file has none), builds both menus with
    // "NoWatermark" selected and draws the (blank) preview.
    void load(const Bundle* bundle, const QString& watermarkFile);

    const MenuModel& watermarkMenu() const { return m_watermarkMenu; }
    int selectedItem() const { return m_selectedItem; }
    const MenuModel& optionsMenu() const { return m_optionsMenu; }
    // MarkWatermarkMenu: whether the options menu's item carries a check
    // mark (the current option and the current page choice do).
    bool isMarked(int optionsItem) const;
    std::int32_t option() const { return m_option; }
    std::int32_t pageChoice() const { return m_pageChoice; }
    QSizeF paperSize() const { return m_paperSize; }
    void setPaperSize(QSizeF size);
    QString subsetFontName() const { return m_subsetFontName; }
    // The selected watermark's name; empty while "NoWatermark" is selected.
    QString selectedName() const;

    // A choice in the watermark menu (item from 1). Saved watermarks and
    // "NoWatermark" select and redraw; New asks for the editor; Edit and
    // Delete do so only while a saved watermark is selected.
    WatermarkPanelAction chooseWatermarkItem(int item);
    // A choice in the options menu: an option (1 to 3) or a page choice.
    void chooseOptionsItem(int item);

    // New: a cleared record on the panel's paper.
    _WatermarkData newRecord() const;
    // After the editor's OK on a new record: the list gains its name (even a
    // name already there), the menu an item, which is selected; the record
    // and the list are saved and the preview redrawn.
    void addWatermark(_WatermarkData& record);
    // Edit: reloads the list from the file and loads the selected
    // watermark's record on the panel's paper. False when nothing is
    // selected or the record can't be loaded.
    bool loadSelectedForEdit(_WatermarkData& record);
    // After the editor's OK: the old entry is removed and the record saved
    // under its (maybe new) name at the same place in the list and menu.
    void replaceSelected(_WatermarkData& record);
    // After the user confirmed: the selected watermark leaves the file and
    // the list, "NoWatermark" is selected.
    void deleteSelected();

    // The preview document of the selection on the panel's paper, drawn by
    // load, by selections, by the three commands and by reads of the ticket.
    const MemoryDocument& preview() const { return m_preview; }
    // Bumped by every redraw, so a view knows when to repaint.
    std::uint64_t previewVersion() const { return m_previewVersion; }
    void redrawPreview();

    // Sync with the session's tickets: true reads the paper size from the
    // page format and the watermark keys from the print settings; false
    // writes them. kSyncMissingContext without a session.
    Status sync(PrintSession* session, bool direction);
    // Writes the selection: its name, option, first-page flag and, for a text
    // watermark, its font program's subset name (made anew on each write);
    // with "NoWatermark" only the name is removed.
    Status syncToTicket(Ticket& printSettings);
    void syncFromTicket(const Ticket& printSettings);

    // The selected watermark and its two options; nothing without one.
    void appendSummary(const Bundle* bundle, PropertyValue* titles, PropertyValue* values) const;

private:
    void rebuildMenu();
    void select(int item);
    // The menu item of the list entry at `index`; 0 when none.
    int itemOfIndex(qsizetype index) const;

    const Bundle* m_bundle = nullptr;
    QString m_file;
    MenuModel m_watermarkMenu;
    MenuModel m_optionsMenu;
    int m_selectedItem = 1;
    std::int32_t m_option = 2;
    std::int32_t m_pageChoice = kAllPagesChoice;
    QSizeF m_paperSize = kLetterPaperSize;
    QString m_subsetFontName;
    MemoryDocument m_preview;
    std::uint64_t m_previewVersion = 0;
    // The name whose glyphs the last drawing wrote into the file.
    QString m_drawnName;
};

} // namespace orvan
