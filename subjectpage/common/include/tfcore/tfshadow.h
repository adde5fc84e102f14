#pragma once

#include "commontemplate.h"

#include <QEvent>
#include <QFrame>
#include <QGraphicsBlurEffect>
#include <QResizeEvent>
#include <QVBoxLayout>

/// A top-level widget of the class \a T without a window frame, with a shadow of its own around the content.
///
/// The shadow is a frame behind the content. It shows in the margin, which is 0 at first; a blur radius above
/// 0 insets it and softens its edge. Changes take effect at the next applyShadow().
template <typename T> class TFShadow : public T
{
public:
    explicit TFShadow(QWidget *parent = nullptr)
        : T(parent)
        , m_shadowFrame(new QFrame(this))
        , m_blurEffect(new QGraphicsBlurEffect(m_shadowFrame))
    {
        this->setWindowFlags(this->windowFlags() | Qt::FramelessWindowHint);
        this->setAttribute(Qt::WA_TranslucentBackground);
        setBlur();
        m_shadowFrame->setGraphicsEffect(m_blurEffect);
        m_shadowFrame->setStyleSheet(m_shadowStyle);
        m_shadowFrame->lower();
    }

    /// Width of the visible shadow in pixels.
    void setShadowMargin(int margin) { m_margin = margin; }
    void setBlurRadius(int radius) { m_blurRadius = radius; }
    /// Style sheet text of the shadow frame.
    void setShadowStyle(const QString &style) { m_shadowStyle = style; }

    void applyShadow()
    {
        m_shadowFrame->setStyleSheet(m_shadowStyle);
        this->setContentsMargins(m_margin, m_margin, m_margin, m_margin);
        setBlur();
        placeShadow();
        this->update();
    }

    /// Makes \a content the content of the window and takes it over. A main window and whatever is no widget
    /// are refused with a warning and stay with the caller. If T itself is a main window, it has to offer
    /// "setCentralWidget(QWidget*)" as an invokable method.
    void initContentWithWidget(QObject *content)
    {
        if (content && content->inherits("QMainWindow")) {
            qCWarning(lcWindow, "can not init with QMainWidget");
            return;
        }
        if (!content || !content->isWidgetType()) {
            qCWarning(lcWindow, "the widget is not widget type!");
            return;
        }
        auto *widget = static_cast<QWidget *>(content);
        if (this->inherits("QMainWindow")) {
            QMetaObject::invokeMethod(this, "setCentralWidget", Q_ARG(QWidget *, widget));
            return;
        }
        auto *layout = new QVBoxLayout(this);
        layout->setSpacing(0);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(widget);
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        T::resizeEvent(event);
        placeShadow();
    }

    void changeEvent(QEvent *event) override
    {
        T::changeEvent(event);
        if (event->type() != QEvent::WindowStateChange)
            return;
        if (this->windowState() & Qt::WindowMaximized)
            this->setContentsMargins(0, 0, 0, 0);
        else if (this->windowState() == Qt::WindowNoState)
            applyShadow();
    }

private:
    void setBlur()
    {
        m_blurEffect->setBlurRadius(m_blurRadius);
        // An effect paints the whole rectangle around what is to be painted anew, also over content that is
        // not painted again.
        m_blurEffect->setEnabled(m_blurRadius > 0);
    }

    void placeShadow()
    {
        m_shadowFrame->setGeometry(m_blurRadius, m_blurRadius, this->width() - 2 * m_blurRadius,
                                   this->height() - 2 * m_blurRadius);
    }

    int m_margin = 0;
    int m_blurRadius = 0;
    QString m_shadowStyle = QStringLiteral("background-color:#636363;border:none;border-radius: 0px;");
    QFrame *m_shadowFrame;
    QGraphicsBlurEffect *m_blurEffect;
};
