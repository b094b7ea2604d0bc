#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>
#include <ostream>

// Found by GoogleTest through argument-dependent lookup: without these a failure prints byte lists.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toUtf8().constData() << '"';
}
inline void PrintTo(const QByteArray &bytes, std::ostream *stream)
{
    *stream << '"' << bytes.toPercentEncoding(" <>\"'&;=/!?#()[]{}").constData() << '"';
}
QT_END_NAMESPACE
