// What the image-quality panels' views share about the pane the shell gives
// them.
#pragma once

class QBoxLayout;
class QWidget;

namespace orvan {

class Bundle;

// The pane's box layout, made (with the shell's margins) when the pane has
// none, so a view can be added to a bare widget too.
QBoxLayout* PanelPaneLayout(QWidget* pane);

// The shell's bundle (the plug-in's own); null outside a shell.
const Bundle* ShellBundle();

} // namespace orvan
