// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than headers are here: the files are a table.

#include "support/SvgFiles.h"

#include <vector>

/// A file that no icon theme should hold.
struct HostileSvg
{
    const char *description;
    QByteArray content;
    bool loads;
    const char *suffix = "svg";
};

namespace HostileSvgs {

const QByteArray box = "viewBox='0 0 16 16'";
const QByteArray shape = "<path d='M2 2H14V14H2Z'/>";

/// Returns a document with the 16 by 16 view box.
inline QByteArray document(const QByteArray &body) { return SvgFiles::document(body); }

/// Returns a document of one path with \a attributes beside its shape.
inline QByteArray path(const QByteArray &attributes)
{
    return document("<path " + attributes + " d='M2 2H14V14H2Z'/>");
}

/// Returns \a count elements called \a name inside each other around \a body.
inline QByteArray nested(const QByteArray &name, int count, const QByteArray &body)
{
    return QByteArray('<' + name + '>').repeated(count) + body
            + QByteArray("</" + name + '>').repeated(count);
}

/// Returns groups of ten uses of the group before, so that the last one has 10^\a levels shapes.
inline QByteArray usesOfUses(int levels)
{
    QByteArray groups = "<g id='level0'>" + shape + "</g>";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray use = "<use xlink:href='#level" + QByteArray::number(level - 1) + "'/>";
        groups += "<g id='level" + QByteArray::number(level) + "'>" + use.repeated(10) + "</g>";
    }
    return "<g><defs>" + groups + "</defs><use xlink:href='#level" + QByteArray::number(levels)
            + "'/></g>";
}

/// Returns a document whose text is the entity "e" of \a definitions.
inline QByteArray withEntities(const QByteArray &definitions)
{
    return "<!DOCTYPE svg [" + definitions + "]>" + document("<text>&e;</text>");
}

/// Returns entities of which each is ten times the one before, up to "e".
inline QByteArray laughs()
{
    QByteArray definitions = "<!ENTITY a0 'ha'>";
    for (int i = 1; i <= 9; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        definitions += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
    }
    return definitions + "<!ENTITY e '&a9;'>";
}

inline QByteArray manyAttributes(int count)
{
    QByteArray attributes;
    for (int i = 0; i < count; ++i)
        attributes += " a" + QByteArray::number(i) + "='x'";
    return attributes;
}

inline std::vector<HostileSvg> structures()
{
    // Qt SVG takes 2048 elements inside each other, the root and the shape among them.
    return {
        { "2046 groups inside each other", document(nested("g", 2046, shape)), true },
        { "2047 groups inside each other", document(nested("g", 2047, shape)), false },
        { "100000 groups inside each other", document(nested("g", 100000, shape)), false },
        { "2000 groups without a view box", SvgFiles::document(nested("g", 2000, shape), ""),
          true },
        { "documents inside each other", document(nested("svg", 1000, shape)), true },
        { "5000 unknown elements inside each other", document(nested("x", 5000, shape)), false },
        { "texts inside each other", document(nested("text", 1000, "a")), true },
        { "a shape inside a shape", document("<path d='M0 0H9'>" + shape + "<g/></path>"), true },
        { "10000 shapes", document(shape.repeated(10000)), true },
        { "2000 attributes", path(manyAttributes(2000)), true },
        { "a name of a million letters", document('<' + QByteArray(1000000, 'x') + "/>"), false },
        { "elements that run programs", document("<script>while(1){}</script><handler/>"), true },
        { "a use of itself", document("<use id='a' xlink:href='#a'/>"), true },
        { "a use of its parent", document("<g id='a'><use xlink:href='#a'/></g>"), true },
        { "a use of the document", SvgFiles::document("<use xlink:href='#a'/>", box + " id='a'"),
          true },
        { "uses of each other",
          document("<g id='a'><use xlink:href='#b'/></g><g id='b'><use xlink:href='#a'/></g>"),
          true },
        { "uses of each other without a view box",
          SvgFiles::document("<g><g id='a'><use xlink:href='#b'/></g>"
                             "<g id='b'><use xlink:href='#a'/></g></g>",
                             ""),
          true },
        { "a use of nothing", document("<use xlink:href='#nothing'/>"), true },
        { "10^9 shapes by uses of uses", document(usesOfUses(9)), true },
        { "10^4 shapes by uses of uses, without a view box", SvgFiles::document(usesOfUses(4), ""),
          true },
    };
}

inline std::vector<HostileSvg> texts()
{
    const QByteArray good = document(shape);
    return {
        { "nothing", "", false },
        { "white space", " \n ", false },
        { "no XML", "square", false },
        { "zero bytes", QByteArray(64, '\0'), false },
        { "another kind of document", "<html><body/></html>", false },
        { "two documents", good + good, false },
        { "cut off in the first tag", good.left(40), false },
        { "cut off in the shape", good.left(good.size() - 15), false },
        { "cut off before the last tag", good.left(good.size() - 6), false },
        { "cut off by one byte", good.left(good.size() - 1), false },
        { "an encoding that does not exist", "<?xml version='1.0' encoding='nonsense'?>" + good,
          false },
        { "bytes that are no UTF-8", document("<title>\xff\xfe</title>" + shape), false },
        { "an entity of a billion laughs", withEntities(laughs()), false },
        { "an entity of itself", withEntities("<!ENTITY e '&e;'>"), false },
        { "an entity of another file", withEntities("<!ENTITY e SYSTEM 'file:///etc/passwd'>"),
          true },
        { "an entity of nothing", document("<text>&e;</text>"), false },
        { "compressed in name only", good, false, "svgz" },
        { "a compressed file that is cut off", "\x1f\x8b\x08", false, "svgz" },
        { "style sheets of open braces",
          document("<style>" + QByteArray("*{").repeated(10000) + "</style>" + shape), true },
        { "a style sheet that imports", document("<style>@import 'x';</style>" + shape), true },
        { "a long style", path("style='" + QByteArray("fill:red;").repeated(10000) + '\''), true },
        { "a long text",
          document("<text font-size='5'>" + QByteArray("abc ").repeated(5000) + "</text>"), true },
    };
}

inline std::vector<HostileSvg> sizes()
{
    const auto sized = [](const QByteArray &attributes) {
        return SvgFiles::document(shape, attributes);
    };
    return {
        { "no view box", sized(""), true },
        { "no view box and nothing in it", SvgFiles::document("<g/>", ""), true },
        { "a view box of no size", sized("viewBox='0 0 0 0'"), true },
        { "a view box of no width", sized("viewBox='0 0 0 16'"), true },
        { "a view box of no height", sized("viewBox='0 0 16 0'"), true },
        { "a view box of negative size", sized("viewBox='0 0 -16 -16'"), true },
        { "a view box of no numbers", sized("viewBox='nan nan nan nan'"), true },
        { "a view box of words", sized("viewBox='a b c d'"), true },
        { "a view box of one number", sized("viewBox='16'"), true },
        { "a view box without end", sized("viewBox='0 0 inf 1e400'"), true },
        { "a huge view box", sized("viewBox='0 0 1e30 1e30'"), true },
        { "a tiny view box", sized("viewBox='0 0 1e-30 1e-30'"), true },
        { "no size", sized(box + " width='0' height='0'"), true },
        { "a huge size", sized(box + " width='1e9' height='1e9'"), true },
        { "a size beyond any number", sized("width='1e308' height='1e308'"), true },
        // Qt takes no picture of a size that is not valid.
        { "two nodes in a view box of no size",
          SvgFiles::document(shape + shape, "viewBox='0 0 0 0'"), true },
        { "two nodes in a huge view box",
          SvgFiles::document(shape + shape, "viewBox='0 0 1e30 1e30'"), false },
    };
}

inline std::vector<HostileSvg> numbers()
{
    return {
        { "coordinates that are no numbers", document("<path d='Mnan nanLinf 1Z'/>"), true },
        { "huge coordinates", document("<path d='M0 0L1e300 1e300L1e400 -1e400Z'/>"), true },
        { "a huge arc", document("<path d='M0 0A1e300 1e300 1e300 1 1 1e300 1e300'/>"), true },
        { "arcs of no size", document("<path d='M0 0A0 0 0 0 0 5 5A5 5 0 0 0 5 5'/>"), true },
        { "a path of garbage", document("<path d='zzz;;Q1 2 3M M1L,,,'/>"), true },
        { "a long path", document("<path d='M0 0" + QByteArray("L1 1L2 2").repeated(50000) + "'/>"),
          true },
        { "shapes of negative size",
          document("<rect rx='-5' width='-4' height='1e300'/><circle r='-4'/><ellipse rx='nan'/>"
                   "<line x1='1e400'/><polygon points='1'/><polyline points=',,,'/>"),
          true },
        { "a huge stroke", path("stroke='red' stroke-width='1e30'"), true },
        { "tiny dashes", path("stroke='red' stroke-dasharray='1e-9 1e-9'"), true },
        { "dashes of no length", path("stroke='red' stroke-dasharray='0 0'"), true },
        { "negative dashes", path("stroke='red' stroke-dasharray='-1 1 nan'"), true },
        { "short dashes on a long line",
          document("<path stroke='red' stroke-dasharray='0.001' d='M0 0H1e9'/>"), true },
        { "colors that do not exist", path("fill='nocolor' stroke='#zzz'"), true },
        { "colors of odd numbers", path("fill='rgb(1e99,-5,nan)' stroke='rgb('"), true },
        { "references that end early", path("fill='url(' stroke='url(#'"), true },
        { "opacities of odd numbers", path("opacity='nan' fill-opacity='1e300'"), true },
        { "transformations of odd numbers",
          path("transform='matrix(nan 0 0 inf 1e300 0) scale(0) rotate(1e300) skewX(90)'"), true },
        { "a transformation that ends early", path("transform='scale((((('"), true },
        { "transformations beyond any number",
          document(QByteArray("<g transform='scale(1e20)'>").repeated(20) + shape
                   + QByteArray("</g>").repeated(20)),
          true },
        { "a huge font", document("<text font-size='1e9' y='8'>abc</text>"), true },
        { "a font of negative size", document("<text font-size='-5' y='8'>abc</text>"), true },
        { "an SVG font of no size",
          document("<defs><font horiz-adv-x='0'><font-face font-family='f' units-per-em='0'/>"
                   "<glyph unicode='a' d='M0 0H5V5Z' horiz-adv-x='-1e30'/></font></defs>"
                   "<text font-family='f' font-size='5'>abc</text>"),
          true },
        { "a gradient of itself",
          document("<g><linearGradient id='a' xlink:href='#a'/><rect width='9' height='9' "
                   "fill='url(#a)'/></g>"),
          true },
        { "gradients of each other",
          document("<g><linearGradient id='a' xlink:href='#b'/><linearGradient id='b' "
                   "xlink:href='#a'/><rect width='9' height='9' fill='url(#a)'/></g>"),
          true },
        { "a gradient of odd numbers",
          document("<g><radialGradient id='a' r='nan' cx='1e300' gradientTransform='matrix(0 0 0 0 "
                   "0 0)'><stop offset='nan' stop-color='z'/><stop offset='1e400'/>"
                   "</radialGradient><rect width='9' height='9' fill='url(#a)'/></g>"),
          true },
        { "images of nothing",
          document("<image width='9' height='9' xlink:href='nothing.png'/><image width='1e9' "
                   "height='1e9' xlink:href='data:image/png;base64,AAAA'/><image width='9' "
                   "height='9' xlink:href='data:,'/>"),
          true },
    };
}

inline std::vector<HostileSvg> animations()
{
    const auto animated = [](const QByteArray &attributes) {
        return document("<g><rect width='9' height='9'><animateTransform "
                        "attributeName='transform' "
                        + attributes
                        + "/></rect></g><g><rect width='9' height='9'><animateColor "
                          "attributeName='fill' "
                        + attributes + "/></rect></g>");
    };
    return {
        { "an animation of no duration",
          animated("type='rotate' values='0;5' dur='0s' repeatCount='indefinite'"), true },
        { "an animation of negative duration",
          animated("type='scale' from='1' to='2' dur='-1s' repeatCount='-5'"), true },
        { "an animation without values", animated("type='rotate' values='' dur='1s'"), true },
        { "an animation of one value", animated("type='rotate' values='1' dur='1s'"), true },
        { "an animation of odd values",
          animated("type='rotate' values='0 1 2 3 4;nan' dur='1e300s' begin='-1e300s'"), true },
        { "an animation without a type", animated("from='1' to='2' dur='1s'"), true },
    };
}

/// Returns all of them.
inline std::vector<HostileSvg> all()
{
    std::vector<HostileSvg> files;
    for (const auto &group : { structures(), texts(), sizes(), numbers(), animations() })
        files.insert(files.end(), group.begin(), group.end());
    return files;
}

} // namespace HostileSvgs
