#pragma once

#include "tfcoreglobal.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVector>

/// Interface identifier that a plug-in's metadata names.
#define TF_APP_PLUGIN_IID "TFAppPlugin"

/// Entry class of a plug-in.
///
/// The host creates one object from the library, calls initialize() of all plug-ins in the order of their
/// dependencies, then extensionsInitialized() in the reverse order, and delayedInitialize() once the window
/// stands. Objects handed over with addAutoReleasedObject() are registered in the host's object pool and
/// deleted with the plug-in.
class TFCORE_EXPORT IPlugin : public QObject
{
    Q_OBJECT

public:
    enum ShutdownFlag { SynchronousShutdown, AsynchronousShutdown };

    IPlugin();
    ~IPlugin() override;

    /// Returns false, with a reason in \a errorString, when the plug-in can't work.
    virtual bool initialize(const QStringList &arguments, QString *errorString) = 0;
    virtual void extensionsInitialized() = 0;
    /// Returns true if the plug-in did some work, so that the host lets the window breathe before the next
    /// one.
    virtual bool delayedInitialize();
    virtual ShutdownFlag aboutToShutdown();
    virtual QObject *remoteCommand(const QStringList &options, const QString &workingDirectory,
                                   const QStringList &arguments);
    virtual QVector<QObject *> createTestObjects() const;

    /// Registers \a object in the host's object pool; the plug-in owns it and takes it out when it goes.
    void addAutoReleasedObject(QObject *object);

private:
    QVector<QPointer<QObject>> m_autoReleased;
};
