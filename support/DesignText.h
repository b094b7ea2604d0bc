#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// An author's page on its way through the web engine and back. What the engine would drop, move or
/// take for text travels as a token: server code (`<?php ... ?>`, `<% ... %>`), `<noscript>`,
/// declarations inside the page, and the blanks that the engine moves. What stands outside the root
/// element does not travel at all.
class DesignText
{
public:
    explicit DesignText(const QString &page = {});

    /// The page as it came, line ends as CR LF.
    const QString &Original() const { return m_original; }
    /// What the engine is to load: the author's doctype and the root element with its tokens.
    QString Html() const { return m_doctype + m_root; }
    /// The root element with its tokens. Any text is accepted; one without `<html>` counts as the
    /// content of the root.
    const QString &Root() const { return m_root; }

    /// Markup with tokens in the places of its server code, to be inserted in the page.
    QString Protect(QStringView markup);
    /// Text of the engine with what its tokens stand for: "<p><!--token--></p>" gives
    /// "<p><?php x ?></p>". A token that occurs twice is restored twice. Line ends stay.
    QString Restore(QStringView html) const;
    /// The whole page around a root element of the engine, line ends as CR LF.
    /// `Page(Root())` is `Original()`, for every page.
    QString Page(QStringView root) const;

private:
    friend class DesignProtector;

    QString m_original;
    QString m_doctype;
    QString m_before;
    QString m_root;
    QString m_after;
    // begins every token, and occurs nowhere in the page
    QString m_mark;
    QStringList m_kept;
    QHash<QString, QString> m_tagNames;
};

} // namespace brenix
