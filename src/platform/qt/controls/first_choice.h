// The first step of a person with a keyboard in a list where nothing is chosen yet.
#pragma once

class QAbstractItemView;

namespace pelmar {

// A list that comes into focus puts its cursor onto the first row without choosing it, and the toolkit's arrow keys go
// on from there: the first row would be passed over, and a list of one row could only be chosen from by a trick. With
// this, Up, Down and Home choose the row under the cursor first.
void ChooseFirstByArrows(QAbstractItemView* list);

}  // namespace pelmar
