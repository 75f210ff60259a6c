// The plug-in's help book: HTML pages in the bundle's help folder, opened in
// the user's browser at a page and an anchor.
#pragma once

#include "settings/Status.h"

#include <QString>
#include <QUrl>

#include <functional>

namespace orvan {

class Bundle;

// The page exists but the browser could not be started.
inline constexpr Status kHelpNotOpened = -1;

// Opens a URL and tells whether it could. The default opener is
// QDesktopServices::openUrl; tests install one that records the URL.
using HelpUrlOpener = std::function<bool(const QUrl&)>;

// Installs the opener (an empty one restores the default) and returns the
// previous one.
HelpUrlOpener SetHelpUrlOpener(HelpUrlOpener opener);

// The URL DisplayHelp opens, or kBadParameter / kFileNotFound (the page or the book's folder does
// not exist). The book is <Resources>/<CFBundleHelpBookFolder, "help" when absent>/. A page is a
// path inside the book. With no page, an anchor is looked up in the book's
// pages (an element with that id or name; the start page is searched first)
// and the start page "index.html" is opened when no page has it.
Status HelpUrl(const Bundle* bundle, const QString& page, const QString& anchor, QUrl* url);

// Opens a page of the bundle's help book at an anchor (either may be empty).
// kBadParameter when there is no bundle or its information dictionary has no
// "CFBundleHelpBookName" string.
Status DisplayHelp(const Bundle* bundle, const QString& page, const QString& anchor);

} // namespace orvan
