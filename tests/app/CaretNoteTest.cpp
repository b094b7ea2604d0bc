#include "app/CaretNote.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace brenix;
using namespace Qt::StringLiterals;

TEST(CaretNote, SelectionsAndTheirNotes)
{
    const struct
    {
        const char *name;
        QString selected;
        QString note; // a colour as "#" and a number in hexadecimal, a picture as "file "
    } rows[] = {
        {"nothing", u""_s, u""_s},
        {"a word", u"word"_s, u""_s},
        {"red", u"#FF0000"_s, u"#ff0000"_s},
        {"white in both cases", u"#FFfffF"_s, u"#ffffff"_s},
        {"black", u"#000000"_s, u"#0"_s},
        {"five digits", u"#FF000"_s, u""_s},
        {"seven digits", u"#FF00000"_s, u""_s},
        {"no sign", u"FF00000"_s, u""_s},
        {"letters that are no digits", u"#header"_s, u""_s},
        {"a digit of another script", u"#12345\u0665"_s, u""_s},
        {"picture", u"img/photo.JPG"_s, u"file img/photo.JPG"_s},
        {"picture of four letters", u"a.jpeg"_s, u"file a.jpeg"_s},
        {"drawing", u"a.svg"_s, u"file a.svg"_s},
        {"an ending alone", u"gif"_s, u"file gif"_s},
        {"ending within", u"a.bmp "_s, u""_s},
        {"names on two lines", u"a.jpg\r\nb.jpg"_s, u""_s},
        {"NUL in a name", u"a\0.jpg"_s, u""_s},
        {"longest", QString(1020, u'x') + u".jpg"_s, u"file "_s + QString(1020, u'x') + u".jpg"_s},
        {"too long", QString(1021, u'x') + u".jpg"_s, u""_s},
        {"entity", u"&eacute;"_s, u"Entitie = 'é '"_s},
        {"case of an entity", u"&Eacute;"_s, u"Entitie = 'É '"_s},
        {"wrong case", u"&EACUTE;"_s, u""_s},
        {"beyond the character map", u"&alpha;"_s, u"Entitie = 'α '"_s},
        {"unknown", u"&nosuch;"_s, u""_s},
        {"no name", u"&;"_s, u""_s},
        {"one sign", u"&"_s, u""_s},
        {"no end", u"&eacute"_s, u""_s},
        {"more than one", u"&eacute;&eacute;"_s, u""_s},
        {"number", u"&#233;"_s, u"Numbered entitie = 'é'"_s},
        {"zeros before it", u"&#000233;"_s, u"Numbered entitie = 'é'"_s},
        {"hexadecimal", u"&#xE9;"_s, u"Numbered entitie = 'é'"_s},
        {"hexadecimal, other case", u"&#Xe9;"_s, u"Numbered entitie = 'é'"_s},
        {"as browsers have it", u"&#150;"_s, u"Numbered entitie = '–'"_s},
        {"two units", u"&#128512;"_s, u"Numbered entitie = '\U0001F600'"_s},
        {"last character", u"&#x10FFFD;"_s, u"Numbered entitie = '\U0010FFFD'"_s},
        {"past the last", u"&#x110000;"_s, u""_s},
        {"far past it", u"&#99999999999999999999999;"_s, u""_s},
        {"surrogate", u"&#xD800;"_s, u""_s},
        {"zero", u"&#0;"_s, u""_s},
        {"no digits", u"&#;"_s, u""_s},
        {"no hexadecimal digits", u"&#x;"_s, u""_s},
        {"a sign", u"&#-5;"_s, u""_s},
        {"a blank", u"&# 5;"_s, u""_s},
        {"decimal with a letter", u"&#2e;"_s, u""_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const CaretNote note = NoteOf(row.selected);
        QString told = note.entity;
        if (note.colour)
            told += u'#' + QString::number(*note.colour, 16);
        if (!note.picture.isEmpty())
            told += u"file "_s + note.picture;
        EXPECT_EQ(told, row.note);
    }
}
