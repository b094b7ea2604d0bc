#include "insert/BodyBackground.h"
#include "insert/TableGrid.h"
#include "tests/support/MemoryDocument.h"

using namespace brenix;
using namespace Qt::StringLiterals;

TEST(TableGrid, RowsAndColumns)
{
    EXPECT_EQ(GridTable(2, 1, u"sel"_s),
              u"<TABLE>\r\n"
              " <TR>\r\n  <TD>\r\n   <! -- Cell (1,1) -- !>\r\n  </TD>\r\n </TR>\r\n"
              " <TR>\r\n  <TD>\r\n   <! -- Cell (1,2) -- !>\r\n  </TD>\r\n </TR>\r\n"
              "</TABLE>sel"_s);
}

TEST(BodyBackground, ChangesTheAttributeAlone)
{
    struct Case
    {
        QString before;
        QString after;
    };
    const Case cases[] = {
        {u"<p><BODY><p>"_s, u"<p><BODY background=\"a.png\"><p>"_s},
        {u"<body text=red>"_s, u"<body text=red background=\"a.png\">"_s},
        {u"<body BACKGROUND = old.gif\r\ntext=\"#000\">x"_s,
         u"<body BACKGROUND = \"a.png\"\r\ntext=\"#000\">x"_s},
        {u"<body title='a>b' background='old b.gif'>"_s,
         u"<body title='a>b' background=\"a.png\">"_s},
        {u"<body\r\ndata-background=\"1\">"_s,
         u"<body\r\ndata-background=\"1\" background=\"a.png\">"_s},
        {u"<!-- <body> --><body>"_s, u"<!-- <body> --><body background=\"a.png\">"_s},
        {u"<tbody>"_s, u"background=\"a.png\"<tbody>"_s},
        {u"<body text"_s, u"background=\"a.png\"<body text"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(qPrintable(row.before));
        MemorySource source;
        source.SetText(row.before);
        source.SetSelStart(0);
        SetBodyBackground(source, u"a.png"_s);
        EXPECT_EQ(source.Text(), row.after);
    }
}
