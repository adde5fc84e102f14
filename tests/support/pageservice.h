#pragma once

#include "testservice.h"

/// A data service for pages: answers view by view, and holds replies back until the test lets them go.
class PageService : public TestService
{
    Q_OBJECT

public:
    /// Which requests a rule is for; a field left alone matches everything.
    struct Match
    {
        QString path = QString();
        int flag = -1; ///< 0 configuration, 1 rows, 2 the whole data set
        qint64 viewId = -1;
        int page = -1;

        bool matches(const Request &request) const;
    };

    /// Requests without a rule are answered with status 404.
    explicit PageService(QObject *parent = nullptr);
    ~PageService() override;

    /// Of several rules that match a request the newest answers.
    void answer(const Match &match, const Answer &answer);
    void answer(const Match &match, Rule rule);
    QList<Request> requestsFor(const Match &match) const;

    /// A good envelope around \a data.
    static Answer data(const QJsonValue &data);
    static Answer failure(int status = 500);
    static Answer held(Answer answer);

private:
    struct ViewRule
    {
        Match match;
        Rule rule;
    };

    Answer answerTo(const Request &request) const;

    QList<ViewRule> m_rules;
};
