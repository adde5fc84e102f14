#include "pageservice.h"
#include "screenobject.h"
#include "subjecttest.h"
#include "testhost.h"
#include "viewdocument.h"

#include "tfframesubjectzhp.h"
#include "tfmainview.h"
#include "tfrightcontainer.h"
#include "tfsubjecttablewidget.h"

#include <QLabel>
#include <QTabWidget>

#include <memory>

/// The component of a composite screen against a service: its state, its arguments, and what it asks for.
class FrameTest : public SubjectTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stateComesBackAsItWasSaved();

private:
    TFFrameSubjectZHP *make();
    int pagesAsked(qint64 id = -1) const
    {
        return m_service->requestsFor({"/bas/subject/data", 0, id}).size();
    }

    std::unique_ptr<PageService> m_service;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<ScreenObject> m_screen;
    std::unique_ptr<QWidget> m_holder;
};

void FrameTest::init()
{
    beginMessages();
    m_service = std::make_unique<PageService>();
    m_host = std::make_unique<TestHost>(m_service.get());
    m_screen = std::make_unique<ScreenObject>();
    m_holder = std::make_unique<QWidget>();
    m_screen->offerOn(m_holder.get());
    m_service->answer({"/bas/subject/data", 0}, PageService::data(ViewDocument().config()));
    m_service->answer({"/bas/subject/data", 1}, PageService::data(ViewDocument().rows(0, 3, 3)));
}

void FrameTest::cleanup()
{
    m_holder.reset();
    m_screen.reset();
    m_service.reset();
    m_host.reset();
    endMessages();
}

TFFrameSubjectZHP *FrameTest::make()
{
    return new TFFrameSubjectZHP(m_holder.get());
}

void FrameTest::stateComesBackAsItWasSaved()
{
    const QVariantMap state{{"version", "1.0.0"},        {"titleVisible", true},
                            {"filterVisible", true},     {"mainViewVisible", true},
                            {"subViewVisible", true},    {"pageBarVisible", false},
                            {"objVwId", qlonglong(260)}, {"title", "股票"},
                            {"objVwIdBinder", "view"},   {"filterMap", QVariantMap{{"CODE", "600000"}}}};
    TFFrameSubjectZHP *frame = make();

    frame->restore(state);
    QVariantMap early;
    frame->save(early);
    QTRY_COMPARE(pagesAsked(260), 1);
    QTRY_VERIFY(frame->page()->mainView()->hasBars());
    QVariantMap late;
    frame->save(late);

    QCOMPARE(early, state);
    QCOMPARE(late, state);
    QCOMPARE(frame->windowTitle(), QString("股票"));
}

SUBJECT_TEST_MAIN(FrameTest)
#include "tst_frame.moc"
