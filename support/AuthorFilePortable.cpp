// The file layer where the system is no Unix: what Qt can promise.
#include "support/AuthorFile.h"

#include <QFileInfo>
#include <QSaveFile>

#include <utility>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    bool IsOtherThanFile(const QFileInfo &file)
    {
        return file.exists() && !file.isFile();
    }

} // namespace

FileContent ReadAuthorFile(const QString &path)
{
    QFile file(path);
    if (IsOtherThanFile(QFileInfo(path)))
        return {.bytes = {}, .error = u"Not a regular file"_s};
    if (!file.open(QIODevice::ReadOnly))
        return {.bytes = {}, .error = file.errorString()};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {.bytes = {}, .error = file.errorString()};
    return {.bytes = std::move(bytes), .error = {}};
}

QString WriteAuthorFile(const QString &path, const QByteArray &bytes)
{
    if (IsOtherThanFile(QFileInfo(path)))
        return u"Not a regular file"_s;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    if (!isWritten || file.error() != QFileDevice::NoError) {
        const QString error = file.errorString();
        file.cancelWriting();
        return error;
    }
    return file.commit() ? QString() : file.errorString();
}

struct AuthorFileBatch::State
{
    QStringList errors;
};

AuthorFileBatch::AuthorFileBatch(Purpose)
    : m_state(new State)
{
}

AuthorFileBatch::~AuthorFileBatch() = default;

void AuthorFileBatch::Add(const QString &path, const QByteArray &bytes)
{
    m_state->errors += WriteAuthorFile(path, bytes);
}

QStringList AuthorFileBatch::PutInPlace()
{
    return std::exchange(m_state->errors, {});
}

void FinishInterruptedWrites()
{
    // Nothing is ever written in place here.
}

} // namespace brenix
