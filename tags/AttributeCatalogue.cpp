#include "tags/AttributeCatalogue.h"

#include "tags/Html5Catalogue.h"
#include "tags/TagCatalogue.h"
#include "tags/WordRows.h"

namespace brenix {

namespace {

    // An asterisk marks what completion alone shows. The spellings ("stanby=", "challange=") and
    // the attributes that stand twice in a row are the catalogue's own.
    constexpr QChar CompletionMark = u'*';

    // clang-format off
    constexpr WordRow Rows[] = {
        {u"BODY",
         u"onload= onunload= bgcolor= style= title= lang= class= marginheight= dir= "
         u"marginwidth= bgproperties= bottommargin= language= leftmargin= rightmargin= "
         u"scroll= topmargin= text= link= background= vlink="},
        {u"A",
         u"accesskey= class= href= id= lang= name= rel= rev= style= tabindex= target= title= "
         u"charset= coords= dir= hreflang= shape= type= datafld= datasrc= language= methods= "
         u"urn= *onblur= *onclick= *ondblclick= *onfocus= *onhelp= *onkeydown= *onkeypress= "
         u"*onkeyup= *onkeyup= *onserverchange= *onserverclick="},
        {u"BASEFONT", u"class= color= face= id= size= lang="},
        {u"HR",
         u"size= width= color= noshade align= title= *tabindex= style= language= lang= id= "
         u"class="},
        {u"META", u"http-equiv= scheme= name= content= lang= dir= language= title= url="},
        {u"P", u"align= class= id= lang= style= title= dir= language="},
        {u"SCRIPT", u"defer charset= title= src= language= event= for= type="},
        {u"PARAM", u"name= value= valuetype= type= id= datafld= datasrc= dataformatas="},
        {u"OL", u"type= start= compact class= id= lang= style= title= language= type= dir="},
        {u"MAP", u"name= class= style= title= lang= dir= language="},
        {u"IMG",
         u"src= alt= width= height= usemap= ismap align= border= longdesc= hspace= vspace= "
         u"class= id= lowsrc= lang= title= dir= longdesc= controls= datafld= datasrc= dynsrc= "
         u"language= loop= loopdelay= start= suppress="},
        {u"OBJECT",
         u"data= codebase= title= accesskey= archive= dir= stanby= usemap= datafld= datasrc= "
         u"language= classid= archive= width= height= name= usemap= *export *shapes align= "
         u"border= declare type= codetype= standby= vspace= hspace="},
        {u"SELECT",
         u"name= multiple onfocus= dir= language= align= title= id= style= size= disabled "
         u"onblur= lang= onchange= tabindex="},
        {u"PRE", u"*cols= *width= *wrap"},
        {u"BGSOUND", u"balance= class= id= lang= loop= src= title= volume="},
        {u"OPTGROUP", u"label= title= lang= dir= class= style= id= disabled"},
        {u"LI", u"type= class= value= id= lang= style= title= dir= language="},
        {u"INS", u"cite= datetime= class= id= lang= style= title= dir= language="},
        {u"UL", u"class= compact id lang= style= title= type= dir= language="},
        {u"HEAD", u"profile= dir= lang= class= id= title="},
        {u"STYLE", u"type= title= media= dir= lang= disabled"},
        {u"DIR", u"compact class= id= style= lang= title= dir= language="},
        {u"FORM",
         u"action= class= method= id= lang= name= style= title= enctype= accept-charset= "
         u"target= dir= language= onsubmit= onreset="},
        {u"TD TH",
         u"align= bgcolor= class= id= lang= style= title= abbr= axis= char= charoff= dir= "
         u"headers= scope= background= bordercolor= bordercolordark= bordercolorlight= "
         u"language= valign= width= height= bgcolor= nowrap rowspan= colspan="},
        {u"TR",
         u"align= class= id= lang= style= title= valign= char= charoff= dir= bordercolor= "
         u"bordercolorlight= language= bgcolor="},
        {u"TABLE",
         u"summary= border= width= height= align= cellspacing= cellpadding= bgcolor= class= "
         u"cols= frame= id= lang= rules= style= title= dir= background= bordercolor= "
         u"bordercolorlight= bordercolordark= datapagesize= datasrc= language="},
        {u"APPLET",
         u"code= archive= codebase= hspace= id= name= object= vscript= title= mayscript= "
         u"datafld= datasrc= src= width= height= alt= align="},
        {u"THEAD",
         u"align= valign= class= char= charoff= dir= lang= style= title= bgcolor= language="},
        {u"DL", u"compact class= id= lang= style= title= dir= language="},
        {u"CAPTION", u"align= class= valign= language= dir= title= style= lang= id="},
        {u"BLOCKQUOTE", u"cite= class= id= lang= style= title= dir= language="},
        {u"FONT",
         u"color= class= face= id= point-size= lang= language= title= size= style= weight="},
        {u"BDO", u"dir= lang= id= title= class= style="},
        {u"FRAMESET",
         u"rows= border= bordercolor= class= cols= frameborder= id= title= style= "
         u"framespacing= lang= language= onload= onunload="},
        {u"FRAME",
         u"name= src= longdesc= frameborder= scrolling= noresize marginheight= marginwidth="},
        {u"AREA",
         u"accesskey= class= id= lang= style= title= dir= language= href= shape= coords= "
         u"target= nohref alt= tabindex= onfocus= onblur="},
        {u"IFRAME",
         u"name= class= id= style= title= longdesc= datafld= datasrc= long= vspace= "
         u"framespacing= src= longdesc= frameborder= scrolling= noresize marginheight= "
         u"marginwidth= align= height= width="},
        {u"BUTTON", u"name= value= type= disabled accesskey= tabindex= onfocus= onblur="},
        {u"LABEL",
         u"for= id= class= lang= style= title= dir= datafld= dataformatas= datasrc= language= "
         u"accesskey= onfocus= onblur="},
        {u"XMP", u"class= id= lang= style= language= title="},
        {u"VAR", u"class= id= lang= style= language= title= dir="},
        {u"WBR", u"class= id= style= title="},
        {u"BASE", u"href= target= *id="},
        {u"LEGEND", u"accesskey= align= class= id= lang= style= title= dir= language= valign="},
        {u"ISINDEX", u"prompt= class= id= lang= style= title= dir="},
        {u"HTML", u"title= version= lang= dir="},
        {u"H1 H2 H3 H4 H5 H6", u"title= align= class= id= lang= style= dir= language="},
        {u"EMBED",
         u"align= height= hspace= name= src= units= vspace= width= border= frameborder= "
         u"hidden= palette= pluginspage= pluginurl= type= alt= class= code= codebase= id= "
         u"style= title="},
        {u"COMMENT", u"id= lang= title="},
        {u"SMALL BIG ACRONYM B S U I KBD SAMP EM DFN ADDRESS CODE CENTER DD DT STRIKE STRONG "
         u"SUB SUP",
         u"class= id= lang= style= title= dir= language="},
        {u"LISTING", u"class= id= lang= style= title= language="},
        {u"MARQUEE",
         u"behavior= bgcolor= class= datafld= dataformatas= datasrc= direction= height= "
         u"hspace= id= lang= language= loop= scrolldelay= scrollamount= style= title= "
         u"truespeed vspace= width="},
        {u"MULTICOL", u"cols= qutter= width="},
        {u"TBODY TFOOT",
         u"class= id= lang= style= title= dir= language= bgcolor= charoff= char= valign= "
         u"align="},
        {u"FIELDSET", u"class= id= lang= style= title= dir= language= align="},
        {u"BR", u"class= id= clear= style= title="},
        {u"COL",
         u"align= class= id= span= style= title= valign= width= char= charoff= dir= lang= "
         u"title= dir= language="},
        {u"RUBY", u"accesskey= class= dir= id= lang= language= style="},
        {u"ABBR", u"class= dir= id= lang= style= title="},
        {u"BLINK", u"class= id= lang= style="},
        {u"TEXTAREA",
         u"accesskey= class= cols= disabled id= lang= name= readonly rows= style= tabindex= "
         u"title= wrap dir= align= datafld= datasrc= language="},
        {u"CITE", u"class= id= lang= style= title= *tabindex= dir= language="},
        {u"DIV",
         u"align= class= id= lang= style= title= dir= language= datafld= dataformatas= "
         u"datasrc="},
        {u"DEL", u"class= id= lang= style= title= dir= language= cite= datetime="},
        {u"TITLE", u"id= lang= title= dir="},
        {u"KEYGEN", u"challange= name="},
        {u"ILAYER",
         u"above= background= below= bgcolor= clip= height= id= left= pagex= pagey= src= top= "
         u"visibility= width= zindex="},
        {u"INPUT",
         u"accesskey= *accept= align= alt= checked class= disabled id= lang= maxlength= name= "
         u"readonly size= src= style= tabindex= title= type= usemap= value= accept= dir= "
         u"dynsrc= lowsrc="},
        {u"MENU", u"class= compact id= lang= style= title= dir= language="},
        {u"OPTION",
         u"class= id= selected value= dir= disabled label= lang= style= title= language="},
        {u"SPAN", u"class= id= lang= style= title= dir= datafld= dataformatas= datasrc= language="},
        {u"SPACER", u"align= height= size= type= width="},
        {u"COLGROUP",
         u"align= class= id= span= style= title= valign= width= char= charoff= dir= lang="},
    };
    // clang-format on

    QStringList MarkedAttributes(QStringView tagName, QStringView dialect)
    {
        static const QHash<QString, QStringList> lists = ListsByKey(Rows);
        const QString key = tagName.toString().toUpper();
        return dialect == Html5Title ? Html5AttributesOfTag(key) : lists.value(key);
    }

} // namespace

QStringList AttributesOfTag(QStringView tagName, QStringView dialect)
{
    QStringList attributes = MarkedAttributes(tagName, dialect);
    for (QString &attribute : attributes) {
        if (attribute.startsWith(CompletionMark))
            attribute.remove(0, 1);
    }
    return attributes;
}

QStringList DialogAttributesOfTag(QStringView tagName, QStringView dialect)
{
    QStringList names;
    for (QString attribute : MarkedAttributes(tagName, dialect)) {
        if (attribute.startsWith(CompletionMark))
            continue;
        if (attribute.endsWith(u'='))
            attribute.chop(1);
        names.append(attribute);
    }
    return names;
}

} // namespace brenix
