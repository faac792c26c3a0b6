#pragma once

class QApplication;

namespace store {

/// Makes the toolkit's own texts Korean, whatever language the workstation is set to: menus of text
/// boxes, names of months and days, the first day of the week. The texts come from Qt's translation
/// beside the program, or from the machine's; where there is none, those menus alone stay English.
void SpeakKorean(QApplication& application);

}  // namespace store
