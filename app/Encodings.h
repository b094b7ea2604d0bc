#pragma once

#include <QList>
#include <QString>

namespace brenix {

struct NamedEncoding
{
    QString name; ///< as QStringDecoder and a page's META tag know it
    QString description; ///< "Central European (Windows)"
};

/// The common encodings of pages that the codecs of this machine can read, in the order in which
/// they are offered: Unicode first, then by part of the world.
QList<NamedEncoding> Encodings();

/// Whether this machine can read the encoding; names are compared as QStringDecoder does it, so
/// that aliases count as well. An empty name gives false.
bool IsDecodable(const QString &name);

} // namespace brenix
