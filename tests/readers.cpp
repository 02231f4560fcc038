// SPDX-License-Identifier: MIT
//
// readers [COUNT [SEED]]: has random sources, most of them plain, read in all ways. Ends at the
// first that differ, and where too few were read quickly for that to tell anything.
#include "readers.h"

#include <cstdio>
#include <cstdlib>
#include <random>

namespace
{

// What breaks, or nearly breaks, a plain source; between bars.
const QList<QByteArray> pieces =
    QByteArray(
        R"(<a>|</a>|<b|/>|>|<|</|&|;|'|"|=|]|]]>|--|?>|<?|<!--|-->|<!|<![CDATA[| |x|5|-|.|:|_|%)"
        R"(|&amp;|&nbsp;|&#|&#x|&#65;|&#x416;|&#10;|&#xD800;|&#0;|&#65534;|&#128512;|&#+5;|&#5 ;)"
        R"(|Ид|ж|<Ид>|</Ид>|<?xml version='1.0'?>|<?xml version="1.0" encoding="UTF-8"?>)"
        R"(|<?xml version='1.0' encoding='windows-1251'?>| standalone='yes'|<!DOCTYPE a>)"
        R"(|<!DOCTYPE a SYSTEM "a">|<!DOCTYPE a [<!ENTITY e 'v'>]>|&e;|<?p q?>|<?p?>|<?XML x?>)"
        R"(| c='1'| c="<"| c='&nbsp;&lt;'| c='/>'| c='1'c='2'|)")
        .split('|') +
    QList<QByteArray>{"\n",
                      "\r\n",
                      "\r",
                      "\t",
                      "\x01",
                      QByteArray(1, '\0'),
                      "\xc2\xa0",
                      "\xe2\x80\xa8",
                      "\xff",
                      "\xd0",
                      "\xf0\x9f\x98\x80",
                      "\xef\xbf\xbe",
                      "\xef\xbb\xbf"};

class Generator
{
public:
    explicit Generator(unsigned seed) : random(seed) {}

    QByteArray source()
    {
        QByteArray xml = below(3) == 0 ? piece() : QByteArray();
        if (below(2) == 0)
            xml = R"(<?xml version="1.0" encoding="UTF-8"?>)" + blank();
        if (below(4) == 0)
            xml += R"(<!DOCTYPE a SYSTEM "a">)" + blank();
        // Sometimes it is cut by the pieces that a source is decoded in.
        if (below(20) == 0)
            xml += "<!--" + QByteArray(int(15'000 + below(2'000)), ' ') + "-->";
        xml += element(4) + blank();
        for (unsigned change = below(4); change > 1; --change) {
            const int at = int(below(unsigned(xml.size())));
            if (below(2) == 0)
                xml.insert(at, piece());
            else
                xml.remove(at, int(below(3)));
        }
        return xml;
    }

private:
    unsigned below(unsigned bound) { return unsigned(random()) % bound; }
    QByteArray piece() { return pieces.at(int(below(unsigned(pieces.size())))); }
    QByteArray blank() { return below(3) == 0 ? "\n" : below(4) == 0 ? " \r\n\t" : ""; }

    QByteArray element(unsigned depth)
    {
        const QByteArray name = below(2) == 0 ? "a" : "Группа-1";
        QByteArray xml = "<" + name;
        for (unsigned i = below(3); i > 0; --i)
            xml += (below(3) == 0 ? "\n" : " ") + QByteArray(below(3) == 0 ? "b" : "c") + "='" +
                   text() + "'";
        if (below(4) == 0)
            return xml + blank() + "/>";
        xml += blank() + ">";
        for (unsigned i = below(4); i > 0; --i)
            xml += content(depth);
        return xml + "</" + name + blank() + ">";
    }

    QByteArray content(unsigned depth)
    {
        switch (below(8)) {
        case 0:
            return "<![CDATA[" + text() + "<]]]>";
        case 1:
            return "<!--" + text() + "-->";
        case 2:
            return "<?p " + text() + "?>";
        case 3:
        case 4:
            return depth > 0 ? element(depth - 1) : blank();
        default:
            return text() + blank();
        }
    }

    QByteArray text()
    {
        static const QList<QByteArray> words =
            QByteArray("x||слово |&amp;|&nbsp;|&#1078;|\n| |]|\"|\xc2\xa0|\xf0\x9f\x98\x80")
                .split('|');
        QByteArray xml;
        for (unsigned i = below(4); i > 0; --i)
            xml += words.at(int(below(unsigned(words.size()))));
        return xml;
    }

    std::mt19937 random;
};

} // namespace

int main(int argc, char *argv[])
{
    const int count = argc > 1 ? std::atoi(argv[1]) : 20'000;
    Generator generator(argc > 2 ? unsigned(std::atoi(argv[2])) : 1);
    int quick = 0;
    int wellFormed = 0;
    for (int i = 0; i < count; ++i) {
        const QByteArray xml = generator.source();
        const Comparison comparison = compareReaders(xml);
        if (comparison.fault != nullptr) {
            std::printf("%s differs:\n%s\n", comparison.fault, xml.constData());
            return 1;
        }
        quick += comparison.isQuick ? 1 : 0;
        wellFormed += comparison.isGuarded ? 1 : 0;
    }
    std::printf("%d sources, %d well-formed, %d read quickly\n", count, wellFormed, quick);
    return quick > count / 4 ? 0 : 1;
}
