#include "tags/TagCatalogue.h"

#include <QHash>

#include <span>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // The rows are what the author gets: "</NOFRAME>", the open "<BUTTON><BUTTON>", a second
    // "<INPUT>" and the order are part of a list.
    // clang-format off
    constexpr QStringView AllHtml[] = {
        u"<!-- -->", u"<!--[DOWNLEVEL-HIDDENBLOCK]>", u"<!--[DOWNLEVEL-REVEALEDBLOCK]>",
        u"<!DOCTYPE>", u"<A></A>", u"<ABBR></ABBR>", u"<ACRONYM></ACRONYM>", u"<ADDRESS></ADDRESS>",
        u"<APPLET></APPLET>", u"<AREA>", u"<B></B>", u"<BANNER></BANNER>", u"<BASE>", u"<BASEFONT>",
        u"<BDO></BDO>", u"<BGSOUND>", u"<BIG></BIG>", u"<BLINK></BLINK>",
        u"<BLOCKQUOTE></BLOCKQUOTE>", u"<BODY></BODY>", u"<BR>", u"<BUTTON></BUTTON>",
        u"<CAPTION></CAPTION>", u"<CENTER></CENTER>", u"<CITE></CITE>", u"<CODE></CODE>", u"<COL>",
        u"<COLGROUP></COLGROUP>", u"<COMMENT></COMMENT>", u"<DD></DD>", u"<DEL></DEL>",
        u"<DFN></DFN>", u"<DIR></DIR>", u"<DIV></DIV>", u"<DL></DL>", u"<DT></DT>", u"<EM></EM>",
        u"<EMBED>", u"<FIELDSET></FIELDSET>", u"<FONT></FONT>", u"<FORM></FORM>", u"<FRAME>",
        u"<FRAMESET></FRAMESET>", u"<HEAD></HEAD>", u"<I></I>", u"<IFRAME></IFRAME>",
        u"<ILAYER></ILAYER>", u"<IMG>", u"<INPUT>", u"<INS></INS>", u"<ISINDEX>", u"<KBD></KBD>",
        u"<KEYGEN></KEYGEN>", u"<LABEL></LABEL>", u"<LAYER></LAYER>", u"<LEGEND></LEGEND>", u"<LI>",
        u"<LINK>", u"<LISTING></LISTING>", u"<MAP></MAP>", u"<MARQUEE></MARQUEE>", u"<MENU></MENU>",
        u"<META>", u"<MULTICOL></MULTICOL>", u"<NEXTID></NEXTID>", u"<NOBR></NOBR>",
        u"<NOEMBED></NOEMBED>", u"<NOFRAMES></NOFRAMES>", u"<NOLAYER></NOLAYER>",
        u"<NOSCRIPT></NOSCRIPT>", u"<OBJECT></OBJECT>", u"<OL></OL>", u"<OPTGROUP></OPTGROUP>",
        u"<OPTION>", u"<P></P>", u"<PARAM>", u"<PLAINTEXT></PLAINTEXT>", u"<PRE></PRE>", u"<Q></Q>",
        u"<RANGE>", u"<RT></RT>", u"<RUBY></RUBY>", u"<S></S>", u"<SAMP></SAMP>",
        u"<SCRIPT></SCRIPT>", u"<SELECT></SELECT>", u"<SERVER></SERVER>", u"<SMALL></SMALL>",
        u"<SOUND></SOUND>", u"<SPACER>", u"<SPAN></SPAN>", u"<SPOT>", u"<STRIKE></STRIKE>",
        u"<STRONG></STRONG>", u"<STYLE></STYLE>", u"<SUB></SUB>", u"<SUP></SUP>",
        u"<TABLE></TABLE>", u"<TBODY></TBODY>", u"<TD>", u"<TEXTAREA></TEXTAREA>",
        u"<TFOOT></TFOOT>", u"<TH></TH>", u"<THEAD></THEAD>", u"<TITLE></TITLE>", u"<TR>",
        u"<TT></TT>", u"<U></U>", u"<UL></UL>", u"<WBR>", u"<XML></XML>",
    };

    constexpr QStringView Html20[] = {
        u"<A></A>", u"<ADDRESS></ADDRESS>", u"<B></B>", u"<BASE>", u"<BLOCKQUOTE></BLOCKQUOTE>",
        u"<BODY></BODY>", u"<BR>", u"<CITE></CITE>", u"<CODE></CODE>", u"<DD>", u"<DIR></DIR>",
        u"<DL></DL>", u"<DT>", u"<EM></EM>", u"<FORM></FORM>", u"<H1></H1>", u"<H2></H2>",
        u"<H3></H3>", u"<H4></H4>", u"<H5></H5>", u"<H6></H6>", u"<HEAD></HEAD>", u"<HR>",
        u"<HTML></HTML>", u"<I></I>", u"<IMG>", u"<INPUT>", u"<ISINDEX>", u"<KBD></KBD>", u"<LI>",
        u"<LINK>", u"<LISTING></LISTING>", u"<MENU></MENU>", u"<META>", u"<OL></OL>", u"<OPTION>",
        u"<P></P>", u"<PLAINTEXT>", u"<PRE></PRE>", u"<SAMP></SAMP>", u"<SELECT></SELECT>",
        u"<STRONG></STRONG>", u"<TEXTAREA></TEXTAREA>", u"<TITLE></TITLE>", u"<TT></TT>",
        u"<UL></UL>", u"<VAR></VAR>", u"<XMP></XMP>",
    };

    constexpr QStringView Html32[] = {
        u"<!DOCTYPE HTML PUBLIC>", u"<A></A>", u"<ADDRESS></ADDRESS>", u"<APPLET></APPLET>",
        u"<B></B>", u"<BASE>", u"<BIG></BIG>", u"<BLOCKQUOTE></BLOCKQUOTE>", u"<BODY></BODY>",
        u"<BR>", u"<CAPTION></CAPTION>", u"<CENTER></CENTER>", u"<CITE></CITE>", u"<CODE></CODE>",
        u"<DD></DD>", u"<DFN></DFN>", u"<DIR></DIR>", u"<DIV></DIV>", u"<DL></DL>", u"<DT></DT>",
        u"<EM></EM>", u"<FONT></FONT>", u"<FORM></FORM>", u"<H1></H1>", u"<H2></H2>", u"<H3></H3>",
        u"<H4></H4>", u"<H5></H5>", u"<H6></H6>", u"<HEAD></HEAD>", u"<HR>", u"<HTML></HTML>",
        u"<I></I>", u"<IMG>", u"<INPUT>", u"<ISINDEX>", u"<KBD></KBD>", u"<LI></LI>", u"<LINK>",
        u"<LISTING></LISTING>", u"<MAP></MAP>", u"<MENU></MENU>", u"<META>", u"<OL></OL>",
        u"<OPTION></OPTION>", u"<P></P>", u"<PARAM>", u"<PLAINTEXT></PLAINTEXT>", u"<PRE></PRE>",
        u"<SAMP></SAMP>", u"<SCRIPT></SCRIPT>", u"<SELECT></SELECT>", u"<SMALL></SMALL>",
        u"<STRIKE></STRIKE>", u"<STRONG></STRONG>", u"<STYLE></STYLE>", u"<SUB></SUB>",
        u"<SUP></SUP>", u"<TABLE></TABLE>", u"<TD></TD>", u"<TEXTAREA></TEXTAREA>", u"<TH></TH>",
        u"<TITLE></TITLE>", u"<TR></TR>", u"<TT></TT>", u"<U></U>", u"<UL></UL>", u"<VAR></VAR>",
    };

    constexpr QStringView Html40[] = {
        u"<!DOCTYPE HTML PUBLIC>", u"<A></A>", u"<ADDRESS></ADDRESS>", u"<APPLET></APPLET>",
        u"<B></B>", u"<BASE>", u"<BASEFONT>", u"<BDO></BDO>", u"<BIG></BIG>",
        u"<BLOCKQUOTE></BLOCKQUOTE>", u"<BODY></BODY>", u"<BR>", u"<BUTTON></BUTTON>",
        u"<CAPTION></CAPTION>", u"<CENTER></CENTER>", u"<CITE></CITE>", u"<CODE></CODE>", u"<COL>",
        u"<COLGROUP></COLGROUP>", u"<DD></DD>", u"<DEL></DEL>", u"<DFN></DFN>", u"<DIR></DIR>",
        u"<DIV></DIV>", u"<DL></DL>", u"<DT></DT>", u"<EM></EM>", u"<FIELDSET></FIELDSET>",
        u"<FONT></FONT>", u"<FORM></FORM>", u"<FRAME>", u"<FRAMESET></FRAMESET>", u"<H1></H1>",
        u"<H2></H2>", u"<H3></H3>", u"<H4></H4>", u"<H5></H5>", u"<H6></H6>", u"<HEAD></HEAD>",
        u"<HR>", u"<HTML></HTML>", u"<I></I>", u"<IFRAME></IFRAME>", u"<IMG>", u"<INPUT>",
        u"<INS></INS>", u"<ISINDEX>", u"<KBD></KBD>", u"<LABEL></LABEL>", u"<LEGEND></LEGEND>",
        u"<LI></LI>", u"<LINK>", u"<LISTING></LISTING>", u"<MAP></MAP>", u"<MENU></MENU>",
        u"<META>", u"<NOFRAMES></NOFRAMES>", u"<NOSCRIPT></NOSCRIPT>", u"<OBJECT></OBJECT>",
        u"<OL></OL>", u"<OPTION></OPTION>", u"<P></P>", u"<PARAM>", u"<PLAINTEXT></PLAINTEXT>",
        u"<PRE></PRE>", u"<Q></Q>", u"<SAMP></SAMP>", u"<SCRIPT></SCRIPT>", u"<SELECT></SELECT>",
        u"<SMALL></SMALL>", u"<SPAN></SPAN>", u"<STRIKE></STRIKE>", u"<STRONG></STRONG>",
        u"<STYLE></STYLE>", u"<SUB></SUB>", u"<SUP></SUP>", u"<TABLE></TABLE>", u"<TBODY></TBODY>",
        u"<TD></TD>", u"<TEXTAREA></TEXTAREA>", u"<TFOOT></TFOOT>", u"<TH></TH>",
        u"<THEAD></THEAD>", u"<TITLE></TITLE>", u"<TR></TR>", u"<TT></TT>", u"<U></U>",
        u"<UL></UL>", u"<VAR></VAR>",
    };

    constexpr QStringView Netscape10[] = {
        u"<A></A>", u"<B></B>", u"<BASE>", u"<BASEFONT>", u"<BLINK></BLINK>",
        u"<BLOCKQUOTE></BLOCKQUOTE>", u"<BODY></BODY>", u"<BR></BR>", u"<CITE></CITE>",
        u"<CODE></CODE>", u"<DD></DD>", u"<DIR></DIR>", u"<DL></DL>", u"<DT></DT>", u"<EM></EM>",
        u"<FORM></FORM>", u"<FRAME>", u"<FRAMESET>", u"<H1></H1>", u"<H2></H2>", u"<H3></H3>",
        u"<H4></H4>", u"<H5></H5>", u"<H6></H6>", u"<HEAD></HEAD>", u"<HR>", u"<HTML></HTML>",
        u"<I></I>", u"<IMG>", u"<INPUT>", u"<ISINDEX></ISINDEX>", u"<KBD></KBD>",
        u"<KEYGEN></KEYGEN>", u"<LI></LI>", u"<MAP></MAP>", u"<MENU></MENU>", u"<META></META>",
        u"<MULTICOL></MULTICOL>", u"<NOFRAMES></NOFRAMES>", u"<OL></OL>", u"<OPTION></OPTION>",
        u"<P></P>", u"<PARAM>", u"<PLAINTEXT></PLAINTEXT>", u"<PRE></PRE>", u"<SAMP></SAMP>",
        u"<SCRIPT></SCRIPT>", u"<SELECT></SELECT>", u"<SERVER></SERVER>", u"<STRONG></STRONG>",
        u"<TEXTAREA></TEXTAREA>", u"<TITLE></TITLE>", u"<TT></TT>", u"<UL></UL>", u"<XMP></XMP>",
    };

    constexpr QStringView Netscape11[] = {
        u"<CAPTION></CAPTION>", u"<CENTER></CENTER>", u"<FONT></FONT>", u"<TABLE></TABLE>",
        u"<TD></TD>", u"<TH></TH>", u"<TR></TR>", u"<WBR></WBR>",
    };

    constexpr QStringView Netscape20[] = {
        u"<APPLET></APPLET>", u"<BIG></BIG>", u"<DIV></DIV>", u"<EMBED></EMBED>",
        u"<SMALL></SMALL>", u"<SUB></SUB>", u"<SUP></SUP>",
    };

    constexpr QStringView Netscape30[] = {
        u"<NOSCRIPT></NOSCRIPT>", u"<S></S>", u"<SPACER>", u"<STRIKE></STRIKE>", u"<U></U>",
    };

    constexpr QStringView Netscape40[] = {
        u"<ILAYER></ILAYER>", u"<LAYER></LAYER>", u"<LINK></LINK>", u"<NOLAYER></NOLAYER>",
        u"<SPAN></SPAN>", u"<STYLE></STYLE>",
    };

    constexpr QStringView Explorer10[] = {
        u"<A></A>", u"<ADDRESS></ADDRESS>", u"<AREA>", u"<B></B>", u"<BASE>", u"<BASEFONT>",
        u"<BLOCKQUOTE></BLOCKQUOTE>", u"<BODY></BODY>", u"<BR>", u"<CENTER></CENTER>",
        u"<CITE></CITE>", u"<CODE></CODE>", u"<COMMENT></COMMENT>", u"<DD></DD>", u"<DFN></DFN>",
        u"<DL></DL>", u"<DT></DT>", u"<EM></EM>", u"<XMP></XMP>", u"<WBR></WBR>", u"<VAR></VAR>",
        u"<U></U>", u"<UL></UL>", u"<TEXTAREA></TEXTAREA>", u"<TITLE></TITLE>", u"<TT></TT>",
        u"<S></S>", u"<SAMP></SAMP>", u"<SELECT></SELECT>", u"<STRIKE></STRIKE>",
        u"<STRONG></STRONG>", u"<P></P>", u"<PLAINTEXT></PLAINTEXT>", u"<PRE></PRE>", u"<OL></OL>",
        u"<OPTION></OPTION>", u"<NOBR></NOBR>", u"<MAP></MAP>", u"<MENU></MENU>", u"<LI></LI>",
        u"<LISTING></LISTING>", u"<KBD></KBD>", u"<I></I>", u"<IMG>", u"<INPUT>", u"<ISINDEX>",
        u"<H1></H1>", u"<H2></H2>", u"<H3></H3>", u"<H4></H4>", u"<H5></H5>", u"<H6></H6>",
        u"<HEAD></HEAD>", u"<HR>", u"<HTML></HTML>", u"<FONT></FONT>", u"<FORM></FORM>",
    };

    constexpr QStringView Explorer20[] = {
        u"<CAPTION></CAPTION>", u"<MARQUEE></MARQUEE>", u"<META>", u"<TABLE></TABLE>", u"<TD></TD>",
        u"<TH></TH>", u"<TR></TR>",
    };

    constexpr QStringView Explorer30[] = {
        u"<APPLET>", u"<BIG></BIG>", u"<COL>", u"<COLGROUP></COLGROUP>", u"<DIV></DIV>",
        u"<EMBED></EMBED>", u"<FRAME>", u"<FRAMESET>", u"<IFRAME>", u"<INPUT>", u"<LINK>",
        u"<NOEMBED></NOEMBED>", u"<NOFRAMES></NOFRAME>", u"<NOSCRIPT></NOSCRIPT>",
        u"<OBJECT></OBJECT>", u"<PARAM>", u"<SCRIPT></SCRIPT>", u"<SMALL></SMALL>",
        u"<SPAN></SPAN>", u"<STYLE></STYLE>", u"<SUB></SUB>", u"<SUP></SUP>", u"<TBODY></TBODY>",
        u"<THEAD></THEAD>", u"<TFOOT></TFOOT>",
    };

    constexpr QStringView Explorer40[] = {
        u"<BLINK></BLINK>", u"<BUTTON><BUTTON>", u"<DEL></DEL>", u"<FIELDSET></FIELDSET>",
        u"<INS></INS>", u"<LABEL></LABEL>", u"<LEGEND></LEGEND>", u"<Q>",
    };

    constexpr QStringView ColdFusion[] = {
        u"<!DOCTYPE HTML PUBLIC >", u"<CFABORT>", u"<CFAPPLICATION>", u"<CFBREAK>", u"<CFCOL>",
        u"<CFCONTENT>", u"<CFCOOKIE>", u"<CFELSE></CFELSE>", u"<CFELSEIF></CFELSEIF>", u"<CFERROR>",
        u"<CFFILE>", u"<CFFORM></CFFORM>", u"<CFGRID></CFGRID>", u"<CFGRIDCOLUMN>", u"<CFGRIDROW>",
        u"<CFHEADER>", u"<CFHTMLHEAD>", u"<CFHTTP></CFHTTP>", u"<CFHTTPPARAM>", u"<CFIF></CFIF>",
        u"<CFINCLUDE>", u"<CFINDEX>", u"<CFINPUT>", u"<CFINSERT>", u"<CFLDAP>", u"<CFLOCATION>",
        u"<CFLOOP></CFLOOP>", u"<CFMAIL>", u"<CFMODULE></CFMODULE>", u"<CFOBJECT></CFOBJECT>",
        u"<CFOUTPUT></CFOUTPUT>", u"<CFPARAM>", u"<CFPOP>", u"<CFQUERY></CFQUERY>", u"<CFREPORT>",
        u"<CFSEARCH>", u"<CFSELECT></CFSELECT>", u"<CFSET>", u"<CFSLIDER>", u"<CFTABLE></CFTABLE>",
        u"<CFTEXTINPUT>", u"<CFTRANSACTION>", u"<CFTREE></CFTREE>", u"<CFTREEITEM>", u"<CFUPDATE>",
    };

    constexpr QStringView WebTv[] = {
        u"<A></A>", u"<AUDIOSCOPE>", u"<BASEFONT></BASEFONT>", u"<BGSOUND>",
        u"<BLACKFACE></BLACKFACE>", u"<BODY></BODY>", u"<BQ></BQ>", u"<FONT></FONT>", u"<HR>",
        u"<IMG>", u"<INPUT></INPUT>", u"<LIMITTEXT>", u"<MARQUEE>", u"<NOBR></NOBR>",
        u"<NOSMARTQUOTES></NOSMARTQUOTES>", u"<SELECT></SELECT>", u"<SHADOW></SHADOW>",
        u"<SIDEBAR></SIDEBAR>", u"<TABLE></TABLE>", u"<TD></TD>", u"<TEXTAREA></TEXTAREA>",
        u"<TH></TH>", u"<TR></TR>",
    };

    constexpr QStringView Html5[] = {
        u"<!-- -->", u"<!DOCTYPE HTML>", u"<A></A>", u"<ABBR></ABBR>", u"<ADDRESS></ADDRESS>",
        u"<AREA>", u"<ARTICLE></ARTICLE>", u"<ASIDE></ASIDE>", u"<AUDIO></AUDIO>", u"<B></B>",
        u"<BASE>", u"<BDI></BDI>", u"<BDO></BDO>", u"<BLOCKQUOTE></BLOCKQUOTE>", u"<BODY></BODY>",
        u"<BR>", u"<BUTTON></BUTTON>", u"<CANVAS></CANVAS>", u"<CAPTION></CAPTION>",
        u"<CITE></CITE>", u"<CODE></CODE>", u"<COL>", u"<COLGROUP></COLGROUP>", u"<DATA></DATA>",
        u"<DATALIST></DATALIST>", u"<DD></DD>", u"<DEL></DEL>", u"<DETAILS></DETAILS>",
        u"<DFN></DFN>", u"<DIALOG></DIALOG>", u"<DIV></DIV>", u"<DL></DL>", u"<DT></DT>",
        u"<EM></EM>", u"<EMBED>", u"<FIELDSET></FIELDSET>", u"<FIGCAPTION></FIGCAPTION>",
        u"<FIGURE></FIGURE>", u"<FOOTER></FOOTER>", u"<FORM></FORM>", u"<H1></H1>", u"<H2></H2>",
        u"<H3></H3>", u"<H4></H4>", u"<H5></H5>", u"<H6></H6>", u"<HEAD></HEAD>",
        u"<HEADER></HEADER>", u"<HGROUP></HGROUP>", u"<HR>", u"<HTML></HTML>", u"<I></I>",
        u"<IFRAME></IFRAME>", u"<IMG>", u"<INPUT>", u"<INS></INS>", u"<KBD></KBD>",
        u"<LABEL></LABEL>", u"<LEGEND></LEGEND>", u"<LI></LI>", u"<LINK>", u"<MAIN></MAIN>",
        u"<MAP></MAP>", u"<MARK></MARK>", u"<MATH></MATH>", u"<MENU></MENU>", u"<META>",
        u"<METER></METER>", u"<NAV></NAV>", u"<NOSCRIPT></NOSCRIPT>", u"<OBJECT></OBJECT>",
        u"<OL></OL>", u"<OPTGROUP></OPTGROUP>", u"<OPTION></OPTION>", u"<OUTPUT></OUTPUT>",
        u"<P></P>", u"<PICTURE></PICTURE>", u"<PRE></PRE>", u"<PROGRESS></PROGRESS>", u"<Q></Q>",
        u"<RP></RP>", u"<RT></RT>", u"<RUBY></RUBY>", u"<S></S>", u"<SAMP></SAMP>",
        u"<SCRIPT></SCRIPT>", u"<SEARCH></SEARCH>", u"<SECTION></SECTION>", u"<SELECT></SELECT>",
        u"<SELECTEDCONTENT></SELECTEDCONTENT>", u"<SLOT></SLOT>", u"<SMALL></SMALL>", u"<SOURCE>",
        u"<SPAN></SPAN>", u"<STRONG></STRONG>", u"<STYLE></STYLE>", u"<SUB></SUB>",
        u"<SUMMARY></SUMMARY>", u"<SUP></SUP>", u"<SVG></SVG>", u"<TABLE></TABLE>",
        u"<TBODY></TBODY>", u"<TD></TD>", u"<TEMPLATE></TEMPLATE>", u"<TEXTAREA></TEXTAREA>",
        u"<TFOOT></TFOOT>", u"<TH></TH>", u"<THEAD></THEAD>", u"<TIME></TIME>", u"<TITLE></TITLE>",
        u"<TR></TR>", u"<TRACK>", u"<U></U>", u"<UL></UL>", u"<VAR></VAR>", u"<VIDEO></VIDEO>",
        u"<WBR>",
    };

    struct Dialect
    {
        QStringView title;
        std::span<const QStringView> rows;
        // An earlier dialect whose rows this one has too.
        QStringView base = {};
        bool baseComesLast = false;
    };

    constexpr Dialect Dialects[] = {
        {AllHtmlTitle,             AllHtml},
        {u"HTML 2.0",              Html20},
        {u"HTML 3.2",              Html32},
        {u"HTML 4.0",              Html40},
        {u"Netscape 1.0",          Netscape10},
        {u"Netscape 1.1",          Netscape11, u"Netscape 1.0"},
        {u"Netscape 2.0",          Netscape20, u"Netscape 1.1"},
        {u"Netscape 3.0",          Netscape30, u"Netscape 2.0"},
        {u"Netscape 4.0",          Netscape40, u"Netscape 3.0"},
        {u"Internet Explorer 1.0", Explorer10},
        {u"Internet Explorer 2.0", Explorer20, u"Internet Explorer 1.0", true},
        {u"Internet Explorer 3.0", Explorer30, u"Internet Explorer 2.0"},
        {u"Internet Explorer 4.0", Explorer40, u"Internet Explorer 3.0"},
        {u"Cold Fusion",           ColdFusion},
        {u"Web TV",                WebTv},
        {Html5Title,               Html5},
    };
    // clang-format on

    QHash<QString, QStringList> ListsByTitle()
    {
        QHash<QString, QStringList> lists;
        for (const Dialect &dialect : Dialects) {
            QStringList own;
            for (const QStringView row : dialect.rows)
                own.append(row.toString());
            const QStringList base = lists.value(dialect.base.toString());
            lists.insert(dialect.title.toString(), dialect.baseComesLast ? own + base : base + own);
        }
        return lists;
    }

    // "A" of "<A></A>".
    QString NameOf(QStringView row)
    {
        const QStringView name = row.sliced(1);
        qsizetype end = 0;
        while (end < name.size() && name[end] != u' ' && name[end] != u'>')
            ++end;
        return name.first(end).toString();
    }

} // namespace

QStringList DialectNames()
{
    QStringList titles;
    for (const Dialect &dialect : Dialects)
        titles.append(dialect.title.toString());
    return titles;
}

const QStringList &TagsOfDialect(QStringView title)
{
    static const QHash<QString, QStringList> lists = ListsByTitle();
    static const QStringList none;
    const auto found = lists.constFind(title.toString());
    return found == lists.cend() ? none : *found;
}

QStringList TagNames(QStringView title)
{
    QStringList names;
    for (const QString &row : TagsOfDialect(title))
        names.append(NameOf(row));
    names.removeDuplicates();
    return names;
}

} // namespace brenix
