#pragma once

#include "tfcore/itfmemory.h"
#include "tfcore/itfskin.h"

#include <QFrame>
#include <QPointer>
#include <QVariantMap>

struct TFFrameState;
class TFRightContainer;

/// A data page as a component of one of the host's composite screens: one view without a navigation tree,
/// chosen in its settings dialog (Ctrl+P) or through a global argument of the screen.
///
/// The parent's property "zhpObj" holds the screen's object: it has a property "args" (the global arguments,
/// a map), a signal argsChanged(QVariantMap), and the invokable methods getArgsDlg(QString current, QString
/// &chosen) and settingsChanged(). It is read when the component is made, is not owned, and may be missing or
/// go before the component, which then works alone. All signals are taken on the user-interface thread.
class TFFrameSubjectZHP : public QFrame, public ITFMemory, public ITFSkin
{
    Q_OBJECT
    Q_INTERFACES(ITFMemory ITFSkin)
    Q_PROPERTY(qlonglong objVwId READ objVwId WRITE setObjVwId)
    Q_PROPERTY(QVariantMap glFilterArgs READ glFilterArgs WRITE setGlFilterArgs)

public:
    /// \a list names the topics of the settings dialog, "name:root code" separated by commas. An empty list
    /// leaves them to the host's configuration, key "zhp.ini:Settings/list".
    explicit TFFrameSubjectZHP(QWidget *parent = nullptr, const QString &list = QString());
    ~TFFrameSubjectZHP() override;

    /// Adds the components to TFFactory<QWidget>::constructors() under their class names, for the host to
    /// make them; a second call changes nothing.
    static void registerComponents();
    /// Takes them out again, before the library goes.
    static void unregisterComponents();

    /// The view on show, 0 if none.
    qlonglong objVwId() const { return m_objVwId; }
    /// Takes \a id if it is at least 1; refreshes nothing.
    void setObjVwId(qlonglong id);

    /// The component's own filter arguments, and those global ones that it does not override.
    QVariantMap glFilterArgs() const;
    /// Replaces the component's own filter arguments, and refreshes the page if they differ.
    void setGlFilterArgs(const QVariantMap &arguments);
    QVariantMap filterMap() const { return m_filterMap; }

    /// Lets the global argument \a key select the view: its value is "title|view identifier". An empty key
    /// or the present one changes nothing.
    void setObjVwIdGlKey(const QString &key);
    QString binderKey() const { return m_binderKey; }

    /// The keys are those of TFFrameState.
    void save(QMap<QString, QVariant> &state) override;
    /// Shows the page of \a state. The visibility of the bars and the child views is applied whenever the
    /// page has a configuration, since they do not exist before.
    void restore(const QMap<QString, QVariant> &state) override;

    QWidget *object() override { return this; }
    void applySkinStyle(const QVariant &style) override;

    QString title() const { return m_title; }
    void setTitle(const QString &title);
    /// Shows view \a id without the filter arguments of the view before. The view on show is left as it is.
    void chooseView(qlonglong id);
    void refreshPage();
    /// Has the part behind \a key, one of the visibility keys of TFFrameState, keep its visibility at every
    /// new page.
    void keepVisible(QLatin1String key, bool visible);
    /// The present state as save() writes it.
    TFFrameState state() const;

    TFRightContainer *page() const { return m_page; }
    /// The screen's object, or null.
    QObject *screenObject() const { return m_screen; }

public slots:
    void slotsArgsChanged(const QVariantMap &glArgs);

private:
    void connectScreen();
    void addSettingsAction(const QString &list);
    QVariantMap screenArguments() const;
    void followBinder(const QString &value);
    bool isCachedVisible(QLatin1String key) const;
    void applyCachedVisibility();

    TFRightContainer *m_page;
    qint64 m_objVwId = 0;
    QString m_title;
    QPointer<QObject> m_screen;
    QString m_binderKey;
    QVariantMap m_filterMap;
    bool m_isVisibilityPending = false; ///< restored, and no page has come since
};

/// The component with the topic of shipping schedules.
class TFFrameSubjectZHP_CQ : public TFFrameSubjectZHP
{
public:
    explicit TFFrameSubjectZHP_CQ(QWidget *parent = nullptr);
};

/// The component with the topic of production plants.
class TFFrameSubjectZHP_ZZ : public TFFrameSubjectZHP
{
public:
    explicit TFFrameSubjectZHP_ZZ(QWidget *parent = nullptr);
};
