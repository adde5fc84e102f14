#pragma once

class QJsonObject;
class QString;
class TFSubjectMainFrame;

/// The steps in which a page is worked without a user, one function a step word.
namespace TFPageSteps {

/// Does \a step on the page of \a frame. Returns false, with the reason, where it can't be done.
bool perform(TFSubjectMainFrame &frame, const QJsonObject &step, QString *reason);

} // namespace TFPageSteps
