#include "checks/TidyExchange.h"

#include "support/TextCodec.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // In lower case; empty for a line that sets nothing.
    QString KeyOf(const QString &line)
    {
        const qsizetype colon = line.indexOf(u':');
        return colon < 0 ? QString() : line.left(colon).trimmed().toLower();
    }

    QStringList LinesOf(QString script)
    {
        return script.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').split(u'\n');
    }

    bool WantsAscii(const QString &script)
    {
        bool isAscii = false;
        for (const QString &line : LinesOf(script)) {
            const QString key = KeyOf(line);
            if (key == u"char-encoding" || key == u"output-encoding")
                isAscii = line.mid(line.indexOf(u':') + 1).trimmed().toLower() == u"ascii";
        }
        return isAscii;
    }

    QRegularExpressionMatch FindCharset(const QString &page)
    {
        static const QRegularExpression declared(
            u"<meta\\b[^<>]*?\\bcharset\\s*=\\s*[\"']?\\s*([^\\s\"'/;<>]+)"_s,
            QRegularExpression::CaseInsensitiveOption);
        return declared.match(page);
    }

} // namespace

QStringList TidyCheckArguments(const QString &report, const QString &page)
{
    return {u"-e"_s, u"-utf8"_s, u"--tab-size"_s, u"1"_s, u"-f"_s, report, page};
}

QStringList TidyRunArguments(const QString &script,
                             const QString &configuration,
                             const QString &report,
                             const QString &page)
{
    // What stands behind the configuration has the last word.
    QStringList arguments{u"-config"_s, configuration, u"-f"_s, report, u"-m"_s, u"-utf8"_s};
    if (WantsAscii(script))
        arguments.append({u"--output-encoding"_s, u"ascii"_s});
    arguments.append(page);
    return arguments;
}

QByteArray TidyConfiguration(const QString &script)
{
    QStringList lines = LinesOf(script);
    lines.removeIf([](const QString &line) {
        const QString key = KeyOf(line);
        return key == u"error-file" || key == u"output-file" || key == u"write-back";
    });
    return lines.join(u'\n').toUtf8();
}

QString TidiedPage(const QByteArray &result, const QString &before)
{
    QString page = DecodePage(result, "UTF-8").text;
    const QRegularExpressionMatch old = FindCharset(before);
    const QRegularExpressionMatch found = FindCharset(page);
    if (old.hasMatch() && found.hasMatch())
        page.replace(found.capturedStart(1), found.capturedLength(1), old.captured(1));
    return page;
}

} // namespace brenix
