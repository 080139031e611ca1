// Gives a target all files of some folders, each once:
//
//   fuzz_replay TARGET FOLDER...
//
// Whatever is wrong ends the program; what it printed last is the file that it was about.

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>

using Target = int (*)(const std::uint8_t *, std::size_t);

#define ORVT_FUZZ_TARGET(name) extern "C" int name(const std::uint8_t *, std::size_t);
#include "FuzzTargets.inc"
#undef ORVT_FUZZ_TARGET

namespace {

const std::map<std::string, Target> targets = {
#define ORVT_FUZZ_TARGET(name) {#name, name},
#include "FuzzTargets.inc"
#undef ORVT_FUZZ_TARGET
};

void run(Target target, const QByteArray &input)
{
    // At its exact size, so that a sanitizer sees what is read behind it.
    const std::string exact(input.constData(), static_cast<std::size_t>(input.size()));
    target(reinterpret_cast<const std::uint8_t *>(exact.data()), exact.size());
}

bool replay(Target target, const QString &fileName)
{
    std::printf("%s\n", qUtf8Printable(fileName));
    std::fflush(stdout);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    run(target, file.readAll());
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const auto target = targets.find(argc > 1 ? argv[1] : "");
    if (target == targets.end())
        return 2;
    int replayed = 0;
    for (int i = 2; i < argc; ++i) {
        QDirIterator files(QString::fromLocal8Bit(argv[i]), QDir::Files);
        while (files.hasNext()) {
            if (!replay(target->second, files.next()))
                return 1;
            ++replayed;
        }
    }
    std::printf("%d inputs\n", replayed);
    return replayed > 0 ? 0 : 1; // a folder that is not found must not look passed
}
