// Runs a fuzz target over the files of the folders that are given, once each, without the fuzzer.

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    int count = 0;
    for (int at = 1; at < argc; ++at) {
        const QDir folder(QFile::decodeName(argv[at]));
        const QStringList names = folder.entryList(QDir::Files);
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QByteArray bytes = file.readAll();
            // Said before: when it crashes, the last name is the one.
            std::printf("%s\n", qPrintable(name));
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
            ++count;
        }
    }
    std::printf("%d files\n", count);
    return count > 0 ? 0 : 1;
}
