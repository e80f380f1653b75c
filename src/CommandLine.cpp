#include "CommandLine.h"

#include <QCommandLineParser>

#include "ViewScale.h"

namespace quendrel {

namespace {

/// Words are any bytes, each of which the toolkit is given as a letter.
QString Letters(const std::string& word) { return QString::fromLatin1(word.c_str()); }

/// The bytes of what the toolkit gives back.
std::string Bytes(const QString& letters) { return letters.toLatin1().toStdString(); }

/// What is wrong with the command line; empty where nothing is.
std::string ComplaintOf(const QCommandLineParser& parser, bool understood) {
    if (!parser.positionalArguments().isEmpty()) {
        return "Unexpected: " + Bytes(parser.positionalArguments().join(' ')) + ".";
    }
    if (!understood) return Bytes(parser.errorText());
    for (const char* const option : {"folder", "check-skin"}) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            return std::string("--") + option + " names no folder.";
        }
    }
    const std::string scale = Bytes(parser.value("scale"));
    if (parser.isSet("scale") && !ScaleOf(scale)) {
        return '"' + scale + "\" is no scale; it is a number from 1 to 3, as 1.5.";
    }
    return {};
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& words) {
    QCommandLineParser parser;
    parser.addOptions({{"folder", {}, "DIR"},
                       {"scale", {}, "NUMBER"},
                       {"check-skin", {}, "DIR"},
                       {"help", {}},
                       {"version", {}}});
    QStringList letters;
    for (const std::string& word : words) letters.append(Letters(word));

    const bool understood = parser.parse(letters);
    if (understood && parser.isSet("help")) return {.request = Request::kSayHelp};
    if (understood && parser.isSet("version")) return {.request = Request::kSayVersion};
    return {.request = parser.isSet("check-skin") ? Request::kCheckSkin : Request::kPlay,
            .complaint = ComplaintOf(parser, understood),
            .folder = Bytes(parser.value("folder")),
            .skin = Bytes(parser.value("check-skin")),
            .scale = ScaleOf(Bytes(parser.value("scale")))};
}

}  // namespace quendrel
