#include "tfframesubjectzhpsettings.h"

#include "records/tfcategories.h"
#include "tfcore/invokerbase.h"
#include "tfframesubjectzhp.h"
#include "tfframesubjectzhpdialog.h"
#include "tfframesubjectzhpstate.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjectsetting.h"

#include <QPointer>

namespace {
void showParts(TFSubjectSetting *setting, const TFFrameState &state)
{
    setting->setPartsVisible(state.mainViewVisible, state.filterVisible, state.subViewVisible,
                             state.pageBarVisible);
}

void showState(TFSubjectSetting *setting, TFFrameSubjectZHP *frame)
{
    const TFFrameState state = frame->state();
    setting->setFrame(frame);
    showParts(setting, state);
    setting->setCurrentView(state.objVwId, state.title);
    setting->setBindingEnabled(frame->screenObject());
}

/// Parts that a new page would hide again keep what is chosen here.
void connectVisibility(TFSubjectSetting *setting, TFFrameSubjectZHP *frame)
{
    TFRightContainer *page = frame->page();
    QObject::connect(setting, &TFSubjectSetting::signalTitleVisibleChanged, page,
                     &TFRightContainer::setTitleVisible);
    QObject::connect(setting, &TFSubjectSetting::signalMainViewVisibleSettingChanged, page,
                     &TFRightContainer::setMainViewVisible);
    QObject::connect(setting, &TFSubjectSetting::signalFilterWidgetVisibleSettingChanged, frame,
                     [frame, page](bool visible) {
                         frame->keepVisible(TFFrameState::FilterVisible, visible);
                         page->mainView()->setFilterBarVisible(visible);
                     });
    QObject::connect(setting, &TFSubjectSetting::signalSubViewVisibleSettingChanged, frame,
                     [frame, page](bool visible) {
                         frame->keepVisible(TFFrameState::SubViewVisible, visible);
                         page->setChildViewsVisible(visible);
                     });
    QObject::connect(setting, &TFSubjectSetting::signalPageBarVisibleChanged, frame,
                     [frame, page](bool visible) {
                         frame->keepVisible(TFFrameState::PageBarVisible, visible);
                         page->mainView()->setPageBarVisible(visible);
                     });
}

void bindView(TFFrameSubjectZHP *frame)
{
    QString current = frame->binderKey();
    QString chosen;
    const QPointer<TFFrameSubjectZHP> alive(frame);
    InvokerBase invoker;
    invoker.bind("QString", &current).bind("QString", &chosen);
    invoker.invoke(frame->screenObject(), "getArgsDlg");
    if (alive)
        alive->setObjVwIdGlKey(chosen);
}

void preview(TFSubjectSetting *setting, TFFrameSubjectZHP *frame)
{
    qCDebug(lcScreen) << "on preview clicked-->slot";
    frame->setGlFilterArgs(setting->filterArguments());
}

void connectChoices(TFSubjectSetting *setting, TFFrameSubjectZHP *frame)
{
    QObject::connect(setting, &TFSubjectSetting::signalTitleChanged, frame, &TFFrameSubjectZHP::setTitle);
    QObject::connect(setting, &TFSubjectSetting::signalObjVwIdChanged, frame,
                     [setting, frame](qlonglong id, const QString &) {
                         // Until the new view has its own, those of the former view must not be taken.
                         if (id != frame->objVwId())
                             setting->setFilterRows({});
                         frame->chooseView(id);
                     });
    QObject::connect(setting, &TFSubjectSetting::signalBindGlBtnClicked, frame, [frame] { bindView(frame); });
    QObject::connect(setting, &TFSubjectSetting::signalPreviewFilters, frame,
                     [setting, frame] { preview(setting, frame); });
    QObject::connect(setting, &TFSubjectSetting::signalRefreashPage, frame, &TFFrameSubjectZHP::refreshPage);
    QObject::connect(frame->page(), &TFRightContainer::signalDataChanged, setting, [setting, frame] {
        setting->setFilterRows(frame->page()->mainView()->filterList());
        showParts(setting, frame->state());
    });
}

void accept(const TFSubjectSetting *setting, TFFrameSubjectZHP *frame, const QVariantMap &before)
{
    frame->setGlFilterArgs(setting->filterArguments());
    QVariantMap after;
    frame->save(after);
    if (after != before && frame->screenObject())
        InvokerBase().invoke(frame->screenObject(), "settingsChanged");
}
} // namespace

void TFFrameSettings::open(TFFrameSubjectZHP *frame, const QString &list)
{
    const QPointer<TFFrameSubjectZHP> alive(frame);
    auto *setting = new TFSubjectSetting(list);
    QVariantMap before;
    frame->save(before);
    showState(setting, frame);
    connectVisibility(setting, frame);
    connectChoices(setting, frame);

    TFFrameDialog dialog(setting);
    dialog.standOver(frame);
    const int result = dialog.exec();
    if (!alive)
        return;
    if (result == QDialog::Accepted)
        accept(setting, frame, before);
    else
        frame->restore(before);
}
