#include "rtf/RtfCodePages.h"

#include "base/Windows1252.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

namespace ORVTListview {
namespace {

using UpperHalf = std::array<char16_t, 0x80>; // the characters of the bytes from 0x80

struct Page
{
    qint32 number;
    UpperHalf upperHalf;
};

// Compiles only where the pieces are a whole half.
consteval UpperHalf joined(std::initializer_list<std::u16string_view> pieces)
{
    UpperHalf half{};
    std::size_t size = 0;
    for (const std::u16string_view piece : pieces) {
        for (const char16_t character : piece)
            half.at(size++) = character;
    }
    return size == half.size() ? half : throw std::length_error("A piece is missing");
}

struct Change
{
    quint8 byte;
    char16_t character;
};

// A page that is another one but for some bytes.
consteval UpperHalf changed(std::u16string_view other, std::initializer_list<Change> changes)
{
    UpperHalf half = joined({other});
    for (const Change &change : changes)
        half.at(change.byte - 0x80U) = change.character;
    return half;
}

// The lines and blocks of the bytes from 0xB0 to 0xDF.
constexpr std::u16string_view lines = u"\u2591\u2592\u2593\u2502\u2524\u2561\u2562\u2556"
                                      u"\u2555\u2563\u2551\u2557\u255D\u255C\u255B\u2510"
                                      u"\u2514\u2534\u252C\u251C\u2500\u253C\u255E\u255F"
                                      u"\u255A\u2554\u2569\u2566\u2560\u2550\u256C\u2567"
                                      u"\u2568\u2564\u2565\u2559\u2558\u2552\u2553\u256B"
                                      u"\u256A\u2518\u250C\u2588\u2584\u258C\u2590\u2580";

// A byte that a page leaves undefined is the control character of the same number
// up to 0x9F, as Windows takes it, and U+FFFD above.
constexpr Page pages[] = {
    {437, joined({u"\u00C7\u00FC\u00E9\u00E2\u00E4\u00E0\u00E5\u00E7"
                  u"\u00EA\u00EB\u00E8\u00EF\u00EE\u00EC\u00C4\u00C5"
                  u"\u00C9\u00E6\u00C6\u00F4\u00F6\u00F2\u00FB\u00F9"
                  u"\u00FF\u00D6\u00DC\u00A2\u00A3\u00A5\u20A7\u0192"
                  u"\u00E1\u00ED\u00F3\u00FA\u00F1\u00D1\u00AA\u00BA"
                  u"\u00BF\u2310\u00AC\u00BD\u00BC\u00A1\u00AB\u00BB",
                  lines,
                  u"\u03B1\u00DF\u0393\u03C0\u03A3\u03C3\u00B5\u03C4"
                  u"\u03A6\u0398\u03A9\u03B4\u221E\u03C6\u03B5\u2229"
                  u"\u2261\u00B1\u2265\u2264\u2320\u2321\u00F7\u2248"
                  u"\u00B0\u2219\u00B7\u221A\u207F\u00B2\u25A0\u00A0"})},
    {850, joined({u"\u00C7\u00FC\u00E9\u00E2\u00E4\u00E0\u00E5\u00E7"
                  u"\u00EA\u00EB\u00E8\u00EF\u00EE\u00EC\u00C4\u00C5"
                  u"\u00C9\u00E6\u00C6\u00F4\u00F6\u00F2\u00FB\u00F9"
                  u"\u00FF\u00D6\u00DC\u00F8\u00A3\u00D8\u00D7\u0192"
                  u"\u00E1\u00ED\u00F3\u00FA\u00F1\u00D1\u00AA\u00BA"
                  u"\u00BF\u00AE\u00AC\u00BD\u00BC\u00A1\u00AB\u00BB"
                  u"\u2591\u2592\u2593\u2502\u2524\u00C1\u00C2\u00C0"
                  u"\u00A9\u2563\u2551\u2557\u255D\u00A2\u00A5\u2510"
                  u"\u2514\u2534\u252C\u251C\u2500\u253C\u00E3\u00C3"
                  u"\u255A\u2554\u2569\u2566\u2560\u2550\u256C\u00A4"
                  u"\u00F0\u00D0\u00CA\u00CB\u00C8\u0131\u00CD\u00CE"
                  u"\u00CF\u2518\u250C\u2588\u2584\u00A6\u00CC\u2580"
                  u"\u00D3\u00DF\u00D4\u00D2\u00F5\u00D5\u00B5\u00FE"
                  u"\u00DE\u00DA\u00DB\u00D9\u00FD\u00DD\u00AF\u00B4"
                  u"\u00AD\u00B1\u2017\u00BE\u00B6\u00A7\u00F7\u00B8"
                  u"\u00B0\u00A8\u00B7\u00B9\u00B3\u00B2\u25A0\u00A0"})},
    {852, joined({u"\u00C7\u00FC\u00E9\u00E2\u00E4\u016F\u0107\u00E7"
                  u"\u0142\u00EB\u0150\u0151\u00EE\u0179\u00C4\u0106"
                  u"\u00C9\u0139\u013A\u00F4\u00F6\u013D\u013E\u015A"
                  u"\u015B\u00D6\u00DC\u0164\u0165\u0141\u00D7\u010D"
                  u"\u00E1\u00ED\u00F3\u00FA\u0104\u0105\u017D\u017E"
                  u"\u0118\u0119\u00AC\u017A\u010C\u015F\u00AB\u00BB"
                  u"\u2591\u2592\u2593\u2502\u2524\u00C1\u00C2\u011A"
                  u"\u015E\u2563\u2551\u2557\u255D\u017B\u017C\u2510"
                  u"\u2514\u2534\u252C\u251C\u2500\u253C\u0102\u0103"
                  u"\u255A\u2554\u2569\u2566\u2560\u2550\u256C\u00A4"
                  u"\u0111\u0110\u010E\u00CB\u010F\u0147\u00CD\u00CE"
                  u"\u011B\u2518\u250C\u2588\u2584\u0162\u016E\u2580"
                  u"\u00D3\u00DF\u00D4\u0143\u0144\u0148\u0160\u0161"
                  u"\u0154\u00DA\u0155\u0170\u00FD\u00DD\u0163\u00B4"
                  u"\u00AD\u02DD\u02DB\u02C7\u02D8\u00A7\u00F7\u00B8"
                  u"\u00B0\u00A8\u02D9\u0171\u0158\u0159\u25A0\u00A0"})},
    {866, joined({u"\u0410\u0411\u0412\u0413\u0414\u0415\u0416\u0417"
                  u"\u0418\u0419\u041A\u041B\u041C\u041D\u041E\u041F"
                  u"\u0420\u0421\u0422\u0423\u0424\u0425\u0426\u0427"
                  u"\u0428\u0429\u042A\u042B\u042C\u042D\u042E\u042F"
                  u"\u0430\u0431\u0432\u0433\u0434\u0435\u0436\u0437"
                  u"\u0438\u0439\u043A\u043B\u043C\u043D\u043E\u043F",
                  lines,
                  u"\u0440\u0441\u0442\u0443\u0444\u0445\u0446\u0447"
                  u"\u0448\u0449\u044A\u044B\u044C\u044D\u044E\u044F"
                  u"\u0401\u0451\u0404\u0454\u0407\u0457\u040E\u045E"
                  u"\u00B0\u2219\u00B7\u221A\u2116\u00A4\u25A0\u00A0"})},
    {874, joined({u"\u20AC\u0081\u0082\u0083\u0084\u2026\u0086\u0087"
                  u"\u0088\u0089\u008A\u008B\u008C\u008D\u008E\u008F"
                  u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                  u"\u0098\u0099\u009A\u009B\u009C\u009D\u009E\u009F"
                  u"\u00A0\u0E01\u0E02\u0E03\u0E04\u0E05\u0E06\u0E07"
                  u"\u0E08\u0E09\u0E0A\u0E0B\u0E0C\u0E0D\u0E0E\u0E0F"
                  u"\u0E10\u0E11\u0E12\u0E13\u0E14\u0E15\u0E16\u0E17"
                  u"\u0E18\u0E19\u0E1A\u0E1B\u0E1C\u0E1D\u0E1E\u0E1F"
                  u"\u0E20\u0E21\u0E22\u0E23\u0E24\u0E25\u0E26\u0E27"
                  u"\u0E28\u0E29\u0E2A\u0E2B\u0E2C\u0E2D\u0E2E\u0E2F"
                  u"\u0E30\u0E31\u0E32\u0E33\u0E34\u0E35\u0E36\u0E37"
                  u"\u0E38\u0E39\u0E3A\uFFFD\uFFFD\uFFFD\uFFFD\u0E3F"
                  u"\u0E40\u0E41\u0E42\u0E43\u0E44\u0E45\u0E46\u0E47"
                  u"\u0E48\u0E49\u0E4A\u0E4B\u0E4C\u0E4D\u0E4E\u0E4F"
                  u"\u0E50\u0E51\u0E52\u0E53\u0E54\u0E55\u0E56\u0E57"
                  u"\u0E58\u0E59\u0E5A\u0E5B\uFFFD\uFFFD\uFFFD\uFFFD"})},
    {1250, joined({u"\u20AC\u0081\u201A\u0083\u201E\u2026\u2020\u2021"
                   u"\u0088\u2030\u0160\u2039\u015A\u0164\u017D\u0179"
                   u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u0098\u2122\u0161\u203A\u015B\u0165\u017E\u017A"
                   u"\u00A0\u02C7\u02D8\u0141\u00A4\u0104\u00A6\u00A7"
                   u"\u00A8\u00A9\u015E\u00AB\u00AC\u00AD\u00AE\u017B"
                   u"\u00B0\u00B1\u02DB\u0142\u00B4\u00B5\u00B6\u00B7"
                   u"\u00B8\u0105\u015F\u00BB\u013D\u02DD\u013E\u017C"
                   u"\u0154\u00C1\u00C2\u0102\u00C4\u0139\u0106\u00C7"
                   u"\u010C\u00C9\u0118\u00CB\u011A\u00CD\u00CE\u010E"
                   u"\u0110\u0143\u0147\u00D3\u00D4\u0150\u00D6\u00D7"
                   u"\u0158\u016E\u00DA\u0170\u00DC\u00DD\u0162\u00DF"
                   u"\u0155\u00E1\u00E2\u0103\u00E4\u013A\u0107\u00E7"
                   u"\u010D\u00E9\u0119\u00EB\u011B\u00ED\u00EE\u010F"
                   u"\u0111\u0144\u0148\u00F3\u00F4\u0151\u00F6\u00F7"
                   u"\u0159\u016F\u00FA\u0171\u00FC\u00FD\u0163\u02D9"})},
    {1251, joined({u"\u0402\u0403\u201A\u0453\u201E\u2026\u2020\u2021"
                   u"\u20AC\u2030\u0409\u2039\u040A\u040C\u040B\u040F"
                   u"\u0452\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u0098\u2122\u0459\u203A\u045A\u045C\u045B\u045F"
                   u"\u00A0\u040E\u045E\u0408\u00A4\u0490\u00A6\u00A7"
                   u"\u0401\u00A9\u0404\u00AB\u00AC\u00AD\u00AE\u0407"
                   u"\u00B0\u00B1\u0406\u0456\u0491\u00B5\u00B6\u00B7"
                   u"\u0451\u2116\u0454\u00BB\u0458\u0405\u0455\u0457"
                   u"\u0410\u0411\u0412\u0413\u0414\u0415\u0416\u0417"
                   u"\u0418\u0419\u041A\u041B\u041C\u041D\u041E\u041F"
                   u"\u0420\u0421\u0422\u0423\u0424\u0425\u0426\u0427"
                   u"\u0428\u0429\u042A\u042B\u042C\u042D\u042E\u042F"
                   u"\u0430\u0431\u0432\u0433\u0434\u0435\u0436\u0437"
                   u"\u0438\u0439\u043A\u043B\u043C\u043D\u043E\u043F"
                   u"\u0440\u0441\u0442\u0443\u0444\u0445\u0446\u0447"
                   u"\u0448\u0449\u044A\u044B\u044C\u044D\u044E\u044F"})},
    {1252, joined({windows1252UpperHalf})},
    {1253, joined({u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                   u"\u0088\u2030\u008A\u2039\u008C\u008D\u008E\u008F"
                   u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u0098\u2122\u009A\u203A\u009C\u009D\u009E\u009F"
                   u"\u00A0\u0385\u0386\u00A3\u00A4\u00A5\u00A6\u00A7"
                   u"\u00A8\u00A9\uFFFD\u00AB\u00AC\u00AD\u00AE\u2015"
                   u"\u00B0\u00B1\u00B2\u00B3\u0384\u00B5\u00B6\u00B7"
                   u"\u0388\u0389\u038A\u00BB\u038C\u00BD\u038E\u038F"
                   u"\u0390\u0391\u0392\u0393\u0394\u0395\u0396\u0397"
                   u"\u0398\u0399\u039A\u039B\u039C\u039D\u039E\u039F"
                   u"\u03A0\u03A1\uFFFD\u03A3\u03A4\u03A5\u03A6\u03A7"
                   u"\u03A8\u03A9\u03AA\u03AB\u03AC\u03AD\u03AE\u03AF"
                   u"\u03B0\u03B1\u03B2\u03B3\u03B4\u03B5\u03B6\u03B7"
                   u"\u03B8\u03B9\u03BA\u03BB\u03BC\u03BD\u03BE\u03BF"
                   u"\u03C0\u03C1\u03C2\u03C3\u03C4\u03C5\u03C6\u03C7"
                   u"\u03C8\u03C9\u03CA\u03CB\u03CC\u03CD\u03CE\uFFFD"})},
    {1254, changed(windows1252UpperHalf, {{0x8E, u'\x8E'},
                                          {0x9E, u'\x9E'},
                                          {0xD0, u'\u011E'},
                                          {0xDD, u'\u0130'},
                                          {0xDE, u'\u015E'},
                                          {0xF0, u'\u011F'},
                                          {0xFD, u'\u0131'},
                                          {0xFE, u'\u015F'}})},
    {1255, joined({u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                   u"\u02C6\u2030\u008A\u2039\u008C\u008D\u008E\u008F"
                   u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u02DC\u2122\u009A\u203A\u009C\u009D\u009E\u009F"
                   u"\u00A0\u00A1\u00A2\u00A3\u20AA\u00A5\u00A6\u00A7"
                   u"\u00A8\u00A9\u00D7\u00AB\u00AC\u00AD\u00AE\u00AF"
                   u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7"
                   u"\u00B8\u00B9\u00F7\u00BB\u00BC\u00BD\u00BE\u00BF"
                   u"\u05B0\u05B1\u05B2\u05B3\u05B4\u05B5\u05B6\u05B7"
                   u"\u05B8\u05B9\uFFFD\u05BB\u05BC\u05BD\u05BE\u05BF"
                   u"\u05C0\u05C1\u05C2\u05C3\u05F0\u05F1\u05F2\u05F3"
                   u"\u05F4\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"
                   u"\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7"
                   u"\u05D8\u05D9\u05DA\u05DB\u05DC\u05DD\u05DE\u05DF"
                   u"\u05E0\u05E1\u05E2\u05E3\u05E4\u05E5\u05E6\u05E7"
                   u"\u05E8\u05E9\u05EA\uFFFD\uFFFD\u200E\u200F\uFFFD"})},
    {1256, joined({u"\u20AC\u067E\u201A\u0192\u201E\u2026\u2020\u2021"
                   u"\u02C6\u2030\u0679\u2039\u0152\u0686\u0698\u0688"
                   u"\u06AF\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u06A9\u2122\u0691\u203A\u0153\u200C\u200D\u06BA"
                   u"\u00A0\u060C\u00A2\u00A3\u00A4\u00A5\u00A6\u00A7"
                   u"\u00A8\u00A9\u06BE\u00AB\u00AC\u00AD\u00AE\u00AF"
                   u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7"
                   u"\u00B8\u00B9\u061B\u00BB\u00BC\u00BD\u00BE\u061F"
                   u"\u06C1\u0621\u0622\u0623\u0624\u0625\u0626\u0627"
                   u"\u0628\u0629\u062A\u062B\u062C\u062D\u062E\u062F"
                   u"\u0630\u0631\u0632\u0633\u0634\u0635\u0636\u00D7"
                   u"\u0637\u0638\u0639\u063A\u0640\u0641\u0642\u0643"
                   u"\u00E0\u0644\u00E2\u0645\u0646\u0647\u0648\u00E7"
                   u"\u00E8\u00E9\u00EA\u00EB\u0649\u064A\u00EE\u00EF"
                   u"\u064B\u064C\u064D\u064E\u00F4\u064F\u0650\u00F7"
                   u"\u0651\u00F9\u0652\u00FB\u00FC\u200E\u200F\u06D2"})},
    {1257, joined({u"\u20AC\u0081\u201A\u0083\u201E\u2026\u2020\u2021"
                   u"\u0088\u2030\u008A\u2039\u008C\u00A8\u02C7\u00B8"
                   u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u0098\u2122\u009A\u203A\u009C\u00AF\u02DB\u009F"
                   u"\u00A0\uFFFD\u00A2\u00A3\u00A4\uFFFD\u00A6\u00A7"
                   u"\u00D8\u00A9\u0156\u00AB\u00AC\u00AD\u00AE\u00C6"
                   u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7"
                   u"\u00F8\u00B9\u0157\u00BB\u00BC\u00BD\u00BE\u00E6"
                   u"\u0104\u012E\u0100\u0106\u00C4\u00C5\u0118\u0112"
                   u"\u010C\u00C9\u0179\u0116\u0122\u0136\u012A\u013B"
                   u"\u0160\u0143\u0145\u00D3\u014C\u00D5\u00D6\u00D7"
                   u"\u0172\u0141\u015A\u016A\u00DC\u017B\u017D\u00DF"
                   u"\u0105\u012F\u0101\u0107\u00E4\u00E5\u0119\u0113"
                   u"\u010D\u00E9\u017A\u0117\u0123\u0137\u012B\u013C"
                   u"\u0161\u0144\u0146\u00F3\u014D\u00F5\u00F6\u00F7"
                   u"\u0173\u0142\u015B\u016B\u00FC\u017C\u017E\u02D9"})},
    {1258, joined({u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                   u"\u02C6\u2030\u008A\u2039\u0152\u008D\u008E\u008F"
                   u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                   u"\u02DC\u2122\u009A\u203A\u0153\u009D\u009E\u0178"
                   u"\u00A0\u00A1\u00A2\u00A3\u00A4\u00A5\u00A6\u00A7"
                   u"\u00A8\u00A9\u00AA\u00AB\u00AC\u00AD\u00AE\u00AF"
                   u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7"
                   u"\u00B8\u00B9\u00BA\u00BB\u00BC\u00BD\u00BE\u00BF"
                   u"\u00C0\u00C1\u00C2\u0102\u00C4\u00C5\u00C6\u00C7"
                   u"\u00C8\u00C9\u00CA\u00CB\u0300\u00CD\u00CE\u00CF"
                   u"\u0110\u00D1\u0309\u00D3\u00D4\u01A0\u00D6\u00D7"
                   u"\u00D8\u00D9\u00DA\u00DB\u00DC\u01AF\u0303\u00DF"
                   u"\u00E0\u00E1\u00E2\u0103\u00E4\u00E5\u00E6\u00E7"
                   u"\u00E8\u00E9\u00EA\u00EB\u0301\u00ED\u00EE\u00EF"
                   u"\u0111\u00F1\u0323\u00F3\u00F4\u01A1\u00F6\u00F7"
                   u"\u00F8\u00F9\u00FA\u00FB\u00FC\u01B0\u20AB\u00FF"})},
    {10000, joined({u"\u00C4\u00C5\u00C7\u00C9\u00D1\u00D6\u00DC\u00E1"
                    u"\u00E0\u00E2\u00E4\u00E3\u00E5\u00E7\u00E9\u00E8"
                    u"\u00EA\u00EB\u00ED\u00EC\u00EE\u00EF\u00F1\u00F3"
                    u"\u00F2\u00F4\u00F6\u00F5\u00FA\u00F9\u00FB\u00FC"
                    u"\u2020\u00B0\u00A2\u00A3\u00A7\u2022\u00B6\u00DF"
                    u"\u00AE\u00A9\u2122\u00B4\u00A8\u2260\u00C6\u00D8"
                    u"\u221E\u00B1\u2264\u2265\u00A5\u00B5\u2202\u2211"
                    u"\u220F\u03C0\u222B\u00AA\u00BA\u03A9\u00E6\u00F8"
                    u"\u00BF\u00A1\u00AC\u221A\u0192\u2248\u2206\u00AB"
                    u"\u00BB\u2026\u00A0\u00C0\u00C3\u00D5\u0152\u0153"
                    u"\u2013\u2014\u201C\u201D\u2018\u2019\u00F7\u25CA"
                    u"\u00FF\u0178\u2044\u20AC\u2039\u203A\uFB01\uFB02"
                    u"\u2021\u00B7\u201A\u201E\u2030\u00C2\u00CA\u00C1"
                    u"\u00CB\u00C8\u00CD\u00CE\u00CF\u00CC\u00D3\u00D4"
                    u"\uF8FF\u00D2\u00DA\u00DB\u00D9\u0131\u02C6\u02DC"
                    u"\u00AF\u02D8\u02D9\u02DA\u00B8\u02DD\u02DB\u02C7"})},
};

} // namespace

const char16_t *rtfUpperHalf(qint32 codePage)
{
    const auto *const page =
        std::find_if(std::begin(pages), std::end(pages),
                     [codePage](const Page &each) { return each.number == codePage; });
    return page == std::end(pages) ? nullptr : page->upperHalf.data();
}

} // namespace ORVTListview
