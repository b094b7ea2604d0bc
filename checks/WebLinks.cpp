#include "checks/WebLinks.h"

#include <QNetworkReply>
#include <QTimer>

#include <chrono>
#include <utility>

namespace brenix {

using namespace std::chrono_literals;

namespace {

    constexpr int MostAtOnce = 6;
    constexpr auto TimeLimit = 10s;
    constexpr int FirstFailure = 400; // of the answers' numbers

    QNetworkRequest RequestFor(const QUrl &url)
    {
        QNetworkRequest request(url);
        request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        return request;
    }

    /// A server that sends a byte now and then is given up as well.
    void LimitTime(QNetworkReply *reply)
    {
        QTimer::singleShot(TimeLimit, reply, &QNetworkReply::abort);
    }

    bool TellsOfPage(const QNetworkReply &reply)
    {
        const int number = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        return number > 0 && number < FirstFailure;
    }

} // namespace

void WebLinks::Try(const QString &address, std::function<void(bool isThere)> answered)
{
    m_waiting.push_back({QUrl(address), std::move(answered)});
    AskNext();
}

void WebLinks::AskNext()
{
    if (m_running >= MostAtOnce || m_waiting.empty())
        return;
    ++m_running;
    const Question question = std::move(m_waiting.front());
    m_waiting.pop_front();
    AskShortly(question);
}

void WebLinks::AskShortly(const Question &question)
{
    QNetworkReply *reply = m_network.head(RequestFor(question.url));
    LimitTime(reply);
    connect(reply, &QNetworkReply::finished, this, [this, reply, question] {
        reply->deleteLater();
        const bool wasAnswered
            = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
        // Some servers refuse this short question, or answer it wrongly.
        if (wasAnswered && !TellsOfPage(*reply))
            AskForPage(question);
        else
            Finish(question, wasAnswered);
    });
}

void WebLinks::AskForPage(const Question &question)
{
    QNetworkReply *reply = m_network.get(RequestFor(question.url));
    LimitTime(reply);
    // The head of the answer is enough. A redirection has an answer of its own first.
    connect(reply, &QNetworkReply::readyRead, reply, &QNetworkReply::abort);
    connect(reply, &QNetworkReply::finished, this, [this, reply, question] {
        reply->deleteLater();
        Finish(question, TellsOfPage(*reply));
    });
}

void WebLinks::Finish(const Question &question, bool isThere)
{
    --m_running;
    question.answered(isThere);
    AskNext();
}

} // namespace brenix
