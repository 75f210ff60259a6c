// The Image Options panel without its widgets: the print resolution and the
// toner saver (PPD options "Resolution" and "QVEconomode"), negative and
// mirror image, the resolution menu, the pictures that illustrate the state,
// and the panel's summary.
#pragma once

#include "imagequality/InvertImage.h"
#include "settings/MenuModel.h"
#include "settings/SettingMap.h"
#include "settings/Status.h"

#include <QString>

#include <cstdint>

struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace orvan {

class Bundle;
class PrintSession;
class Ticket;

inline const QString kImageOptionsTitleKey = QStringLiteral("Image Options");
inline constexpr std::uint32_t kImageOptionsCreator = FourCharCode("Qshl");

inline const QString kResolutionKeyword = QStringLiteral("Resolution");
inline const QString kTonerSaverKeyword = QStringLiteral("QVEconomode");

// Values of the toner saver's PPD choice map.
inline constexpr std::int32_t kTonerSaverOn = 1;  // "Draft"
inline constexpr std::int32_t kTonerSaverOff = 2; // "None"

// Label keys of the panel's controls.
inline const QString kResolutionLabelKey = QStringLiteral("Resolution Label");
inline const QString kTonerSaverLabelKey = QStringLiteral("Toner Saver:");
inline const QString kTonerSaverTitleKey = QStringLiteral("Conserve Dry Ink");
inline const QString kInvertImageLabelKey = QStringLiteral("Invert Image Label");
inline const QString kNegativeImageTitleKey = QStringLiteral("Negative Image Title");
inline const QString kMirrorImageTitleKey = QStringLiteral("Mirror Image Title");

class ImageOptionsModel
{
public:
    ImageOptionsModel();

    // Keeps the PPD (null allowed) and fills the resolution menu from its
    // "Resolution" choices, without the constraint check: only the choices
    // the resolution map knows, each carrying its value. A PPD without the
    // option leaves the menu empty (and says so on stderr).
    void load(ppd_file_t* ppd);
    ppd_file_t* ppd() const { return m_ppd; }
    const MenuModel& resolutionMenu() const { return m_resolutionMenu; }

    // The resolution as a value of the resolution map; -1 for a choice the
    // map does not know. The item of the menu that shows it; 0 for none.
    std::int32_t resolution() const { return m_resolution; }
    int resolutionItem() const { return m_resolutionMenu.findReferenceValue(m_resolution); }
    // The user chose a resolution item: its value becomes the resolution.
    void chooseResolution(std::int32_t value) { m_resolution = value; }

    // The toner saver as a value of the draft-mode map (kTonerSaverOn,
    // kTonerSaverOff, or -1 for an unknown choice).
    std::int32_t tonerSaver() const { return m_tonerSaver; }
    bool tonerSaverOn() const { return m_tonerSaver == kTonerSaverOn; }
    void setTonerSaverOn(bool on) { m_tonerSaver = on ? kTonerSaverOn : kTonerSaverOff; }

    const II_Options& invertImage() const { return m_invertImage; }
    void setNegativeImage(bool on) { m_invertImage.negativeImage = on; }
    void setMirrorImage(bool on) { m_invertImage.mirrorImage = on; }

    // Sync with the session's print-settings ticket: direction false writes
    // the resolution and toner saver choices and the invert-image options
    // (from which controls exist, see InvertImageSync); true reads them.
    // kSyncMissingContext without a session.
    Status sync(PrintSession* session, bool direction, InvertImageControls controls);

    // The PPD choice of the value, stored in the ticket's PPD dictionary;
    // nothing when the value has no choice.
    void syncResolutionToTicket(Ticket& ticket) const;
    void syncTonerSaverToTicket(Ticket& ticket) const;
    // The ticket's choice, else the PPD's default, as a value (-1 for a
    // choice the map does not know); unchanged when there is neither.
    void syncResolutionToUI(const Ticket& ticket);
    void syncTonerSaverToUI(const Ticket& ticket);
    // Lighten/darken and the halftone screen are not offered by this
    // printer family's panel: these succeed and do nothing.
    Status syncLightenDarkenToTicket(Ticket&) const { return kNoError; }
    Status syncLightenDarkenToUI(const Ticket&) { return kNoError; }
    Status updateHalftoneScreenMenu() { return kNoError; }

    // The bundle's picture files that illustrate the state.
    QString resolutionPicture() const;
    QString tonerSaverPicture() const;
    QString invertImagePicture() const;

    // Appends resolution, toner saver, negative and mirror image.
    void appendSummary(const Bundle* bundle, PropertyValue* titles, PropertyValue* values) const;

private:
    ppd_file_t* m_ppd = nullptr;
    MenuModel m_resolutionMenu;
    std::int32_t m_resolution = -1;
    std::int32_t m_tonerSaver = kTonerSaverOff;
    II_Options m_invertImage;
};

} // namespace orvan
