// Keys that go through a strip of tabs from anywhere in its window: Ctrl+Tab, Ctrl+Page Down and their reverses, and
// Alt+1 to Alt+9 for the tab of that number, also where a keyboard has other characters on these keys. Whichever way
// the tab changes, its name is said to who can't see it.
#pragma once

class QTabBar;
class QWidget;

namespace pelmar {

// The strip has its tabs already and lives as long as the window. While it is hidden the keys do nothing.
void AddTabKeys(QWidget& window, QTabBar& tabs);

}  // namespace pelmar
