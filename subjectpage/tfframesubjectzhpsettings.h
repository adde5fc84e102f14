#pragma once

#include <QString>

class TFFrameSubjectZHP;

/// One use of the settings dialog of a component.
namespace TFFrameSettings {

/// Opens the settings of \a frame with the topics \a list and returns when the dialog is closed. What is
/// chosen shows at once; a dialog that is rejected puts the state of before back, one that is accepted tells
/// the screen's object of a state that has changed. The frame may go while the dialog is open.
void open(TFFrameSubjectZHP *frame, const QString &list);

} // namespace TFFrameSettings
