#pragma once

#include "pageservice.h"
#include "screenobject.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "tfframesubjectzhp.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"

#include <QWidget>

#include <memory>

/// A composite screen with room for components, and a service whose views all have the filter CODE.
class FrameFixture : public SubjectTest
{
    Q_OBJECT

protected:
    void setUp()
    {
        beginMessages();
        allowWarnings("frozen count is invaild");
        service = std::make_unique<PageService>();
        host = std::make_unique<TestHost>(service.get());
        screen = std::make_unique<ScreenObject>();
        holder = std::make_unique<QWidget>();
        screen->offerOn(holder.get());
        ViewDocument document;
        document.filters = {QJsonObject{{"ClassName", "TextEdit"}, {"FieldName", "CODE"}, {"Operator", "="}}};
        service->answer({"/bas/subject/data", 0}, PageService::data(document.config()));
        service->answer({"/bas/subject/data", 1}, PageService::data(document.rows(0, 3, 3)));
    }
    void tearDown()
    {
        holder.reset();
        screen.reset();
        service.reset();
        host.reset();
        endMessages();
    }

    /// A component on view 260 with the argument CODE of its own.
    TFFrameSubjectZHP *makeFrame(const QVariantMap &changes = {})
    {
        auto *frame = new TFFrameSubjectZHP(holder.get(), "股票专题:2");
        frame->restore(stateWith(changes));
        return frame;
    }
    static QVariantMap goodState()
    {
        return {{"version", "1.0.0"},      {"titleVisible", true},
                {"filterVisible", true},   {"mainViewVisible", true},
                {"subViewVisible", true},  {"pageBarVisible", false},
                {"title", "股票"},         {"objVwId", qlonglong(260)},
                {"objVwIdBinder", "view"}, {"filterMap", QVariantMap{{"CODE", "600000"}}}};
    }
    /// The good state with some keys replaced; an invalid value takes a key out.
    static QVariantMap stateWith(const QVariantMap &changes)
    {
        QVariantMap state = goodState();
        for (auto change = changes.begin(); change != changes.end(); ++change) {
            if (change->isValid())
                state.insert(change.key(), *change);
            else
                state.remove(change.key());
        }
        return state;
    }
    static QVariantMap saved(TFFrameSubjectZHP *frame)
    {
        QVariantMap state;
        frame->save(state);
        return state;
    }
    /// View, title and own arguments, such as "260 股票 CODE=600000".
    static QString text(const TFFrameSubjectZHP *frame)
    {
        QStringList words{QString::number(frame->objVwId()), frame->title()};
        const QVariantMap map = frame->filterMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry)
            words.append(entry.key() + '=' + entry.value().toString());
        return words.join(' ');
    }
    int refreshes() const { return debugLines().filter("refresh right container:").size(); }

    std::unique_ptr<PageService> service;
    std::unique_ptr<TestHost> host;
    std::unique_ptr<ScreenObject> screen;
    std::unique_ptr<QWidget> holder;
};
