#pragma once

#include "tfcore/tfadwidget.h"

#include <QDialog>

/// The window around the settings of a component: modal, without a frame, resizable, dragged by its top 30
/// pixels.
class TFFrameDialog : public TFAdWidget<QDialog>
{
public:
    /// \a content becomes the content and is taken over; of its buttons "pbOk" accepts, "pbCancel" and
    /// "pbClose" reject. What is no widget, or a main window, is refused with a warning and stays with the
    /// caller; a button that is missing gives a warning too.
    explicit TFFrameDialog(QObject *content);

    /// Puts the dialog over \a opener, in the middle of its screen. The dialog is no child of it: it may live
    /// longer, and goes off the screen when the opener goes.
    void standOver(const QWidget *opener);

private:
    void connectButtons();
};
