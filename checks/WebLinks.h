#pragma once

#include "support/NetworkModule.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

#include <deque>

class QNetworkReply;

namespace brenix {

/// The tester over the system's network.
class WebLinks final : public QObject, public LinkTester
{
public:
    void Try(const QString &address, std::function<void(bool isThere)> answered) override;

private:
    struct Question
    {
        QUrl url;
        std::function<void(bool isThere)> answered;
    };

    void AskNext();
    void AskShortly(const Question &question);
    void AskForPage(const Question &question);
    void Finish(const Question &question, bool isThere);

    QNetworkAccessManager m_network;
    std::deque<Question> m_waiting;
    int m_running = 0;
};

} // namespace brenix
