// Keys that change the tab from anywhere in a window. Ctrl+Tab and Ctrl+Page Down go to the next tab. Ctrl+Shift+Tab
// and Ctrl+Page Up go to the previous tab. Alt with a key of the number row (1 to 9) goes to the tab with this number,
// on any keyboard layout. When another tab is selected, screen readers say its name.
#pragma once

class QTabBar;
class QWidget;

namespace pelmar {

// `tabs` must contain its tabs already and live as long as the window. If `tabs` is hidden, the keys do nothing.
void AddTabKeys(QWidget& window, QTabBar& tabs);

}  // namespace pelmar
