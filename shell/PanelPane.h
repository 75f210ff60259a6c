// What every panel's view needs of the pane the shell (or the host) gives it.
#pragma once

class QBoxLayout;
class QWidget;

namespace orvan {

// The pane's box layout, made (with the shell's margins) when the pane has
// none, so a view can be added to a bare widget too.
QBoxLayout* PanelPaneLayout(QWidget* pane);

} // namespace orvan
