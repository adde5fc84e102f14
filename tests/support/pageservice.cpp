#include "pageservice.h"

bool PageService::Match::matches(const Request &request) const
{
    const auto fits = [&request](int wanted, const char *key) {
        return wanted < 0 || request.body.value(QLatin1String(key)).toInt(-1) == wanted;
    };
    return (path.isEmpty() || path == request.path) && fits(flag, "flag") && fits(int(viewId), "obj_vw_id") &&
           fits(page, "page");
}

PageService::PageService(QObject *parent)
    : TestService(parent)
{
    setRule([this](const Request &request) { return answerTo(request); });
}

PageService::~PageService() = default;

void PageService::answer(const Match &match, const Answer &answer)
{
    this->answer(match, [answer](const Request &) { return answer; });
}

void PageService::answer(const Match &match, Rule rule)
{
    m_rules.prepend({match, std::move(rule)});
}

TestService::Answer PageService::answerTo(const Request &request) const
{
    for (const ViewRule &rule : m_rules) {
        if (rule.match.matches(request))
            return rule.rule(request);
    }
    return failure(404);
}

QList<TestService::Request> PageService::requestsFor(const Match &match) const
{
    QList<Request> found;
    for (const Request &request : requests()) {
        if (match.matches(request))
            found.append(request);
    }
    return found;
}

TestService::Answer PageService::data(const QJsonValue &data)
{
    Answer answer;
    answer.text = envelope(data);
    return answer;
}

TestService::Answer PageService::failure(int status)
{
    Answer answer;
    answer.status = status;
    return answer;
}

TestService::Answer PageService::held(Answer answer)
{
    answer.isHeld = true;
    return answer;
}
