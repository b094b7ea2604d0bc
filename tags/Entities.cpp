#include "tags/Entities.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct NamedCharacter
    {
        char16_t character;
        QStringView name;
    };

    // In the order of the characters, which is the order of the map.
    // clang-format off
    constexpr NamedCharacter NamedCharacters[] = {
        {0x0022, u"quot"}, {0x0026, u"amp"}, {0x003C, u"lt"}, {0x003E, u"gt"}, {0x00A0, u"nbsp"},
        {0x00A1, u"iexcl"}, {0x00A2, u"cent"}, {0x00A3, u"pound"}, {0x00A4, u"curren"},
        {0x00A5, u"yen"}, {0x00A6, u"brvbar"}, {0x00A7, u"sect"}, {0x00A8, u"uml"},
        {0x00A9, u"copy"}, {0x00AA, u"ordf"}, {0x00AB, u"laquo"}, {0x00AC, u"not"},
        {0x00AD, u"shy"}, {0x00AE, u"reg"}, {0x00AF, u"macr"}, {0x00B0, u"deg"},
        {0x00B1, u"plusmn"}, {0x00B2, u"sup2"}, {0x00B3, u"sup3"}, {0x00B4, u"acute"},
        {0x00B5, u"micro"}, {0x00B6, u"para"}, {0x00B7, u"middot"}, {0x00B8, u"cedil"},
        {0x00B9, u"sup1"}, {0x00BA, u"ordm"}, {0x00BB, u"raquo"}, {0x00BC, u"frac14"},
        {0x00BD, u"frac12"}, {0x00BE, u"frac34"}, {0x00BF, u"iquest"}, {0x00C0, u"Agrave"},
        {0x00C1, u"Aacute"}, {0x00C2, u"Acirc"}, {0x00C3, u"Atilde"}, {0x00C4, u"Auml"},
        {0x00C5, u"Aring"}, {0x00C6, u"AElig"}, {0x00C7, u"Ccedil"}, {0x00C8, u"Egrave"},
        {0x00C9, u"Eacute"}, {0x00CA, u"Ecirc"}, {0x00CB, u"Euml"}, {0x00CC, u"Igrave"},
        {0x00CD, u"Iacute"}, {0x00CE, u"Icirc"}, {0x00CF, u"Iuml"}, {0x00D0, u"ETH"},
        {0x00D1, u"Ntilde"}, {0x00D2, u"Ograve"}, {0x00D3, u"Oacute"}, {0x00D4, u"Ocirc"},
        {0x00D5, u"Otilde"}, {0x00D6, u"Ouml"}, {0x00D7, u"times"}, {0x00D8, u"Oslash"},
        {0x00D9, u"Ugrave"}, {0x00DA, u"Uacute"}, {0x00DB, u"Ucirc"}, {0x00DC, u"Uuml"},
        {0x00DD, u"Yacute"}, {0x00DE, u"THORN"}, {0x00DF, u"szlig"}, {0x00E0, u"agrave"},
        {0x00E1, u"aacute"}, {0x00E2, u"acirc"}, {0x00E3, u"atilde"}, {0x00E4, u"auml"},
        {0x00E5, u"aring"}, {0x00E6, u"aelig"}, {0x00E7, u"ccedil"}, {0x00E8, u"egrave"},
        {0x00E9, u"eacute"}, {0x00EA, u"ecirc"}, {0x00EB, u"euml"}, {0x00EC, u"igrave"},
        {0x00ED, u"iacute"}, {0x00EE, u"icirc"}, {0x00EF, u"iuml"}, {0x00F0, u"eth"},
        {0x00F1, u"ntilde"}, {0x00F2, u"ograve"}, {0x00F3, u"oacute"}, {0x00F4, u"ocirc"},
        {0x00F5, u"otilde"}, {0x00F6, u"ouml"}, {0x00F7, u"divide"}, {0x00F8, u"oslash"},
        {0x00F9, u"ugrave"}, {0x00FA, u"uacute"}, {0x00FB, u"ucirc"}, {0x00FC, u"uuml"},
        {0x00FD, u"yacute"}, {0x00FE, u"thorn"}, {0x00FF, u"yuml"}, {0x0152, u"OElig"},
        {0x0153, u"oelig"}, {0x0160, u"Scaron"}, {0x0161, u"scaron"}, {0x0178, u"Yuml"},
        {0x0192, u"fnof"}, {0x02C6, u"circ"}, {0x02DC, u"tilde"}, {0x0391, u"Alpha"},
        {0x0392, u"Beta"}, {0x0393, u"Gamma"}, {0x0394, u"Delta"}, {0x0395, u"Epsilon"},
        {0x0396, u"Zeta"}, {0x0397, u"Eta"}, {0x0398, u"Theta"}, {0x0399, u"Iota"},
        {0x039A, u"Kappa"}, {0x039B, u"Lambda"}, {0x039C, u"Mu"}, {0x039D, u"Nu"}, {0x039E, u"Xi"},
        {0x039F, u"Omicron"}, {0x03A0, u"Pi"}, {0x03A1, u"Rho"}, {0x03A3, u"Sigma"},
        {0x03A4, u"Tau"}, {0x03A5, u"Upsilon"}, {0x03A6, u"Phi"}, {0x03A7, u"Chi"},
        {0x03A8, u"Psi"}, {0x03A9, u"Omega"}, {0x03B1, u"alpha"}, {0x03B2, u"beta"},
        {0x03B3, u"gamma"}, {0x03B4, u"delta"}, {0x03B5, u"epsilon"}, {0x03B6, u"zeta"},
        {0x03B7, u"eta"}, {0x03B8, u"theta"}, {0x03B9, u"iota"}, {0x03BA, u"kappa"},
        {0x03BB, u"lambda"}, {0x03BC, u"mu"}, {0x03BD, u"nu"}, {0x03BE, u"xi"},
        {0x03BF, u"omicron"}, {0x03C0, u"pi"}, {0x03C1, u"rho"}, {0x03C2, u"sigmaf"},
        {0x03C3, u"sigma"}, {0x03C4, u"tau"}, {0x03C5, u"upsilon"}, {0x03C6, u"phi"},
        {0x03C7, u"chi"}, {0x03C8, u"psi"}, {0x03C9, u"omega"}, {0x03D1, u"thetasym"},
        {0x03D2, u"upsih"}, {0x03D6, u"piv"}, {0x2002, u"ensp"}, {0x2003, u"emsp"},
        {0x2009, u"thinsp"}, {0x200C, u"zwnj"}, {0x200D, u"zwj"}, {0x200E, u"lrm"},
        {0x200F, u"rlm"}, {0x2013, u"ndash"}, {0x2014, u"mdash"}, {0x2018, u"lsquo"},
        {0x2019, u"rsquo"}, {0x201A, u"sbquo"}, {0x201C, u"ldquo"}, {0x201D, u"rdquo"},
        {0x201E, u"bdquo"}, {0x2020, u"dagger"}, {0x2021, u"Dagger"}, {0x2022, u"bull"},
        {0x2026, u"hellip"}, {0x2030, u"permil"}, {0x2032, u"prime"}, {0x2033, u"Prime"},
        {0x2039, u"lsaquo"}, {0x203A, u"rsaquo"}, {0x203E, u"oline"}, {0x2044, u"frasl"},
        {0x20AC, u"euro"}, {0x2111, u"image"}, {0x2118, u"weierp"}, {0x211C, u"real"},
        {0x2122, u"trade"}, {0x2135, u"alefsym"}, {0x2190, u"larr"}, {0x2191, u"uarr"},
        {0x2192, u"rarr"}, {0x2193, u"darr"}, {0x2194, u"harr"}, {0x21B5, u"crarr"},
        {0x21D0, u"lArr"}, {0x21D1, u"uArr"}, {0x21D2, u"rArr"}, {0x21D3, u"dArr"},
        {0x21D4, u"hArr"}, {0x2200, u"forall"}, {0x2202, u"part"}, {0x2203, u"exist"},
        {0x2205, u"empty"}, {0x2207, u"nabla"}, {0x2208, u"isin"}, {0x2209, u"notin"},
        {0x220B, u"ni"}, {0x220F, u"prod"}, {0x2211, u"sum"}, {0x2212, u"minus"},
        {0x2217, u"lowast"}, {0x221A, u"radic"}, {0x221D, u"prop"}, {0x221E, u"infin"},
        {0x2220, u"ang"}, {0x2227, u"and"}, {0x2228, u"or"}, {0x2229, u"cap"}, {0x222A, u"cup"},
        {0x222B, u"int"}, {0x2234, u"there4"}, {0x223C, u"sim"}, {0x2245, u"cong"},
        {0x2248, u"asymp"}, {0x2260, u"ne"}, {0x2261, u"equiv"}, {0x2264, u"le"}, {0x2265, u"ge"},
        {0x2282, u"sub"}, {0x2283, u"sup"}, {0x2284, u"nsub"}, {0x2286, u"sube"}, {0x2287, u"supe"},
        {0x2295, u"oplus"}, {0x2297, u"otimes"}, {0x22A5, u"perp"}, {0x22C5, u"sdot"},
        {0x2308, u"lceil"}, {0x2309, u"rceil"}, {0x230A, u"lfloor"}, {0x230B, u"rfloor"},
        {0x2329, u"lang"}, {0x232A, u"rang"}, {0x25CA, u"loz"}, {0x2660, u"spades"},
        {0x2663, u"clubs"}, {0x2665, u"hearts"}, {0x2666, u"diams"},
    };
    // clang-format on

    constexpr char16_t FirstOfMap = 0x00A1;
    constexpr char16_t LastOfMap = 0x00FF;
    constexpr QStringView NotInMap = u"\u00AD\u00AF\u00B4\u00B8"; // shy, macr, acute, cedil

    bool IsInMap(char16_t character)
    {
        return character >= FirstOfMap && character <= LastOfMap && !NotInMap.contains(character);
    }

    bool IsCalled(const NamedCharacter &named, QStringView name)
    {
        return named.name.contains(name, Qt::CaseInsensitive)
            || (name.size() == 1 && name[0] == named.character);
    }

    QHash<QString, QChar> CharactersByEntity()
    {
        QHash<QString, QChar> characters;
        for (const NamedCharacter &named : NamedCharacters)
            characters.insert(u'&' + named.name.toString() + u';', named.character);
        return characters;
    }

} // namespace

QStringList CharacterMapRows()
{
    return CharacterMapRows({});
}

QStringList CharacterMapRows(QStringView wanted)
{
    QStringView name = wanted.trimmed();
    if (name.startsWith(u'&'))
        name = name.sliced(1);
    if (name.endsWith(u';'))
        name.chop(1);
    QStringList inMap;
    QStringList others;
    for (const NamedCharacter &named : NamedCharacters) {
        const bool isInMap = IsInMap(named.character);
        if (name.isEmpty() ? isInMap : IsCalled(named, name))
            (isInMap ? inMap : others)
                .append(u"%1 - &%2;"_s.arg(QChar(named.character)).arg(named.name));
    }
    return inMap + others;
}

QString CharacterOfEntity(QStringView entity)
{
    static const QHash<QString, QChar> characters = CharactersByEntity();
    const auto found = characters.constFind(entity.toString());
    return found == characters.cend() ? QString() : QString(*found);
}

} // namespace brenix
