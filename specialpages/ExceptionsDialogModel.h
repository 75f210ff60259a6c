// The exceptions dialog without its widgets: the page ranges typed, the plex
// and the stock they are printed with.
#pragma once

#include "settings/MenuModel.h"
#include "settings/Status.h"
#include "specialpages/DialogMode.h"
#include "specialpages/ExceptionPageList.h"

#include <QString>

#include <functional>

namespace orvan {

class Bundle;

class ExceptionsDialogModel
{
public:
    // Adding starts from a range with every setting inherited from the job;
    // editing from the edited range ("first-last", or one page).
    ExceptionsDialogModel(const Bundle* bundle, DialogMode mode, const ExceptionPage* edited);

    // The range whose settings the controls edit; its pages come from the
    // text on OK.
    ExceptionPage& page() { return m_page; }
    const ExceptionPage& page() const { return m_page; }

    const QString& pagesText() const { return m_pagesText; }
    void setPagesText(const QString& text) { m_pagesText = text; }

    // "UseJobSetting" (plex unset), then "Simplex", "Duplex", "DuplexShort".
    const MenuModel& plexMenu() const { return m_plexMenu; }
    int plexItem() const;
    void setPlexItem(int item);

    // OK: each range typed becomes a copy of the edited range with those
    // pages, added to the list (a new range wins over those it overlaps), or
    // replacing the edited range. saveUndoState runs just before the list
    // changes. A bad text, or page 0, changes nothing, shows its alert and
    // returns its code; the dialog then stays open.
    Status accept(ExceptionPageList& exceptions, const ExceptionPage* edited,
                  const std::function<void()>& saveUndoState) const;

private:
    const Bundle* m_bundle;
    DialogMode m_mode;
    ExceptionPage m_page;
    QString m_pagesText;
    MenuModel m_plexMenu;
};

} // namespace orvan
