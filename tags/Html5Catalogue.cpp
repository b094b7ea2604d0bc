#include "tags/Html5Catalogue.h"

#include "tags/WordRows.h"

namespace brenix {

namespace {

    // clang-format off
    constexpr QStringView EveryElement =
        u"accesskey= autocapitalize= autocorrect= autofocus class= contenteditable= data- dir= "
        u"draggable= enterkeyhint= hidden id= inert inputmode= is= itemid= itemprop= itemref= "
        u"itemscope itemtype= lang= nonce= part= popover= slot= spellcheck= style= tabindex= "
        u"title= translate= writingsuggestions= role= aria-activedescendant= aria-atomic= "
        u"aria-autocomplete= aria-braillelabel= aria-brailleroledescription= aria-busy= "
        u"aria-checked= aria-colcount= aria-colindex= aria-colindextext= aria-colspan= "
        u"aria-controls= aria-current= aria-describedby= aria-description= aria-details= "
        u"aria-disabled= aria-errormessage= aria-expanded= aria-flowto= aria-haspopup= "
        u"aria-hidden= aria-invalid= aria-keyshortcuts= aria-label= aria-labelledby= "
        u"aria-level= aria-live= aria-modal= aria-multiline= aria-multiselectable= "
        u"aria-orientation= aria-owns= aria-placeholder= aria-posinset= aria-pressed= "
        u"aria-readonly= aria-relevant= aria-required= aria-roledescription= aria-rowcount= "
        u"aria-rowindex= aria-rowindextext= aria-rowspan= aria-selected= aria-setsize= "
        u"aria-sort= aria-valuemax= aria-valuemin= aria-valuenow= aria-valuetext= onabort= "
        u"onauxclick= onbeforeinput= onbeforematch= onbeforetoggle= onblur= oncancel= "
        u"oncanplay= oncanplaythrough= onchange= onclick= onclose= oncommand= oncontextlost= "
        u"oncontextmenu= oncontextrestored= oncopy= oncuechange= oncut= ondblclick= ondrag= "
        u"ondragend= ondragenter= ondragleave= ondragover= ondragstart= ondrop= "
        u"ondurationchange= onemptied= onended= onerror= onfocus= onformdata= oninput= "
        u"oninvalid= onkeydown= onkeypress= onkeyup= onload= onloadeddata= onloadedmetadata= "
        u"onloadstart= onmousedown= onmouseenter= onmouseleave= onmousemove= onmouseout= "
        u"onmouseover= onmouseup= onpaste= onpause= onplay= onplaying= onprogress= "
        u"onratechange= onreset= onresize= onscroll= onscrollend= onsecuritypolicyviolation= "
        u"onseeked= onseeking= onselect= onslotchange= onstalled= onsubmit= onsuspend= "
        u"ontimeupdate= ontoggle= onvolumechange= onwaiting= onwheel=";

    // The last row holds the elements that have no attributes of their own.
    constexpr WordRow AttributeRows[] = {
        {u"AREA", u"alt= coords= shape= href= target= download= ping= rel= referrerpolicy="},
        {u"AUDIO", u"src= crossorigin= preload= autoplay loop muted controls"},
        {u"A", u"href= target= download= ping= rel= hreflang= type= referrerpolicy="},
        {u"BASE", u"href= target="},
        {u"BLOCKQUOTE Q", u"cite="},
        {u"BODY",
         u"onafterprint= onbeforeprint= onbeforeunload= onhashchange= onlanguagechange= "
         u"onmessage= onmessageerror= onoffline= ononline= onpagehide= onpagereveal= "
         u"onpageshow= onpageswap= onpopstate= onrejectionhandled= onstorage= "
         u"onunhandledrejection= onunload="},
        {u"BUTTON",
         u"type= name= value= disabled form= formaction= formenctype= formmethod= "
         u"formnovalidate formtarget= command= commandfor= popovertarget= "
         u"popovertargetaction="},
        {u"CANVAS", u"width= height="},
        {u"COL COLGROUP", u"span="},
        {u"DATA", u"value="},
        {u"DEL INS", u"cite= datetime="},
        {u"DETAILS", u"name= open"},
        {u"DIALOG", u"open closedby="},
        {u"EMBED", u"src= type= width= height="},
        {u"FIELDSET", u"disabled form= name="},
        {u"FORM",
         u"action= method= enctype= accept-charset= autocomplete= name= novalidate rel= "
         u"target="},
        {u"IFRAME",
         u"src= srcdoc= name= sandbox= allow= allowfullscreen width= height= referrerpolicy= "
         u"loading="},
        {u"IMG",
         u"src= alt= srcset= sizes= width= height= loading= decoding= fetchpriority= "
         u"crossorigin= referrerpolicy= usemap= ismap"},
        {u"INPUT",
         u"type= name= value= accept= alpha alt= autocomplete= checked colorspace= dirname= "
         u"disabled form= formaction= formenctype= formmethod= formnovalidate formtarget= "
         u"height= list= max= maxlength= min= minlength= multiple pattern= placeholder= "
         u"popovertarget= popovertargetaction= readonly required size= src= step= width="},
        {u"LABEL", u"for="},
        {u"LINK",
         u"rel= href= as= blocking= color= crossorigin= disabled fetchpriority= hreflang= "
         u"imagesizes= imagesrcset= integrity= media= referrerpolicy= sizes= type="},
        {u"LI", u"value="},
        {u"MAP SLOT", u"name="},
        {u"MATH", u"display= xmlns="},
        {u"META", u"name= content= charset= http-equiv= media="},
        {u"METER", u"value= min= max= low= high= optimum="},
        {u"OBJECT", u"data= type= name= form= width= height="},
        {u"OL", u"reversed start= type="},
        {u"OPTGROUP", u"label= disabled"},
        {u"OPTION", u"value= label= selected disabled"},
        {u"OUTPUT", u"for= form= name="},
        {u"PROGRESS", u"value= max="},
        {u"SCRIPT",
         u"src= type= async defer nomodule blocking= crossorigin= fetchpriority= integrity= "
         u"referrerpolicy="},
        {u"SELECT", u"name= autocomplete= disabled form= multiple required size="},
        {u"SOURCE", u"src= type= srcset= sizes= media= width= height="},
        {u"STYLE", u"media= blocking="},
        {u"SVG",
         u"xmlns= viewBox= width= height= x= y= preserveAspectRatio= fill= stroke= "
         u"stroke-width="},
        {u"TD", u"colspan= rowspan= headers="},
        {u"TEMPLATE",
         u"shadowrootmode= shadowrootdelegatesfocus shadowrootclonable shadowrootserializable"},
        {u"TEXTAREA",
         u"name= rows= cols= autocomplete= dirname= disabled form= maxlength= minlength= "
         u"placeholder= readonly required wrap="},
        {u"TH", u"abbr= colspan= rowspan= headers= scope="},
        {u"TIME", u"datetime="},
        {u"TRACK", u"src= kind= srclang= label= default"},
        {u"VIDEO",
         u"src= poster= width= height= preload= autoplay loop muted controls playsinline "
         u"crossorigin="},
        {u"ABBR ADDRESS ARTICLE ASIDE B BDI BDO BR CAPTION CITE CODE DATALIST DD DFN DIV DL "
         u"DT EM FIGCAPTION FIGURE FOOTER H1 H2 H3 H4 H5 H6 HEAD HEADER HGROUP HR HTML I KBD "
         u"LEGEND MAIN MARK MENU NAV NOSCRIPT P PICTURE PRE RP RT RUBY S SAMP SEARCH SECTION "
         u"SELECTEDCONTENT SMALL SPAN STRONG SUB SUMMARY SUP TABLE TBODY TFOOT THEAD TITLE TR "
         u"U UL VAR WBR",
         u""},
    };

    constexpr WordRow ValueRows[] = {
        {u"type",
         u"text email password search tel url number range date month week time "
         u"datetime-local color checkbox radio file hidden submit reset button image module "
         u"importmap speculationrules 1 a A i I"},
        {u"rel",
         u"alternate author bookmark canonical dns-prefetch expect external help icon license "
         u"manifest me modulepreload next nofollow noopener noreferrer opener pingback "
         u"preconnect prefetch preload prev privacy-policy search stylesheet tag "
         u"terms-of-service"},
        {u"dir", u"ltr rtl auto"},
        {u"method", u"get post dialog"},
        {u"formmethod", u"get post dialog"},
        {u"enctype formenctype",
         u"application/x-www-form-urlencoded multipart/form-data text/plain"},
        {u"formtarget", u"_blank _parent _top _self"},
        {u"shape", u"circle default poly rect"},
        {u"loading", u"eager lazy"},
        {u"decoding", u"sync async auto"},
        {u"fetchpriority", u"high low auto"},
        {u"crossorigin", u"anonymous use-credentials"},
        {u"referrerpolicy",
         u"no-referrer no-referrer-when-downgrade origin origin-when-cross-origin same-origin "
         u"strict-origin strict-origin-when-cross-origin unsafe-url"},
        {u"preload", u"none metadata auto"},
        {u"blocking", u"render"},
        {u"as",
         u"audio document embed fetch font image json object report script serviceworker "
         u"sharedworker style track video worker xslt"},
        {u"sandbox",
         u"allow-downloads allow-forms allow-modals allow-orientation-lock allow-pointer-lock "
         u"allow-popups allow-popups-to-escape-sandbox allow-presentation allow-same-origin "
         u"allow-scripts allow-top-navigation allow-top-navigation-by-user-activation "
         u"allow-top-navigation-to-custom-protocols"},
        {u"http-equiv",
         u"content-security-policy content-type default-style refresh x-ua-compatible"},
        {u"charset accept-charset", u"utf-8"},
        {u"media", u"all print screen"},
        {u"kind", u"subtitles captions descriptions chapters metadata"},
        {u"scope", u"row col rowgroup colgroup"},
        {u"wrap", u"soft hard"},
        {u"autocomplete",
         u"on off name honorific-prefix given-name additional-name family-name "
         u"honorific-suffix nickname username new-password current-password one-time-code "
         u"organization-title organization street-address address-line1 address-line2 "
         u"address-line3 address-level4 address-level3 address-level2 address-level1 country "
         u"country-name postal-code cc-name cc-given-name cc-additional-name cc-family-name "
         u"cc-number cc-exp cc-exp-month cc-exp-year cc-csc cc-type transaction-currency "
         u"transaction-amount language bday bday-day bday-month bday-year sex url photo tel "
         u"tel-country-code tel-national tel-area-code tel-local tel-local-prefix "
         u"tel-local-suffix tel-extension email impp shipping billing home work mobile fax "
         u"pager webauthn"},
        {u"autocapitalize", u"none off on sentences words characters"},
        {u"inputmode", u"none text tel url email numeric decimal search"},
        {u"enterkeyhint", u"enter done go next previous search send"},
        {u"translate", u"yes no"},
        {u"autocorrect", u"on off"},
        {u"contenteditable", u"true false plaintext-only"},
        {u"draggable spellcheck writingsuggestions", u"true false"},
        {u"hidden", u"until-found"},
        {u"popover", u"auto hint manual"},
        {u"popovertargetaction", u"toggle show hide"},
        {u"command", u"toggle-popover show-popover hide-popover show-modal close request-close"},
        {u"closedby", u"any closerequest none"},
        {u"shadowrootmode", u"open closed"},
        {u"colorspace", u"limited-srgb display-p3"},
        {u"accept", u"audio/* image/* video/*"},
        {u"data formaction poster", u"(file)"},
        {u"action cite", u"(file)"},
        {u"role",
         u"alert alertdialog application article banner blockquote button caption cell "
         u"checkbox code columnheader combobox complementary contentinfo definition deletion "
         u"dialog document emphasis feed figure form generic grid gridcell group heading img "
         u"insertion link list listbox listitem log main marquee math menu menubar menuitem "
         u"menuitemcheckbox menuitemradio meter navigation none note option paragraph "
         u"presentation progressbar radio radiogroup region row rowgroup rowheader scrollbar "
         u"search searchbox separator slider spinbutton status strong subscript superscript "
         u"switch tab table tablist tabpanel term textbox time timer toolbar tooltip tree "
         u"treegrid treeitem"},
        {u"aria-atomic aria-busy aria-disabled aria-modal aria-multiline aria-multiselectable "
         u"aria-readonly aria-required",
         u"true false"},
        {u"aria-expanded aria-hidden aria-selected", u"true false undefined"},
        {u"aria-checked aria-pressed", u"true false mixed undefined"},
        {u"aria-autocomplete", u"inline list both none"},
        {u"aria-current", u"page step location date time true false"},
        {u"aria-haspopup", u"true false menu listbox tree grid dialog"},
        {u"aria-invalid", u"true false grammar spelling"},
        {u"aria-live", u"assertive off polite"},
        {u"aria-orientation", u"horizontal vertical undefined"},
        {u"aria-relevant", u"additions all removals text"},
        {u"aria-sort", u"ascending descending none other"},
    };
    // clang-format on

} // namespace

QStringList Html5AttributesOfTag(const QString &tagName)
{
    static const QHash<QString, QStringList> lists = ListsByKey(AttributeRows);
    static const QStringList everyElement = WordsOf(EveryElement);
    const auto own = lists.constFind(tagName);
    return own == lists.cend() ? QStringList() : *own + everyElement;
}

QStringList Html5ValuesOfAttribute(const QString &name)
{
    static const QHash<QString, QStringList> lists = ListsByKey(ValueRows);
    return lists.value(name);
}

} // namespace brenix
