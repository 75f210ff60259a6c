// Keeps the widgets library non-empty until the first view lands.
namespace orvan {
int widgetsLibraryAnchor = 0;
}
