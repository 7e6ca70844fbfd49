/// Makes the seeds of the fuzz targets from what the simulated imager makes: make_seeds FOLDER
/// writes FOLDER/TARGET/NAME, a few small files for each target.

#include <QDataStream>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

class Seeds
{
public:
    explicit Seeds(const QString& folder) : m_folder(folder) {}

    void add(const char* target, const QString& name, const QByteArray& bytes) const
    {
        const QDir folder(m_folder.filePath(QLatin1String(target)));
        QFile file(folder.filePath(name));
        if (!folder.mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly) ||
            file.write(bytes) != bytes.size()) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            std::exit(1);
        }
    }

private:
    QDir m_folder;
};

void addConfigurationRecords(const Seeds& seeds)
{
    const auto serialised = [](const QString& text) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << text;
        return bytes;
    };
    const auto add = [&seeds](const char* name, const QByteArray& file) {
        seeds.add("configuration_record_fuzz", QLatin1String(name), file);
    };
    const QByteArray fresh =
        serialised(QStringLiteral("000,EN,C:/Users/user/Documents/Tepla Imaging Suite"));
    add("fresh", fresh);
    add("chosen", serialised(QStringLiteral("000,RU,D:\\тревоги")));
    add("comma", serialised(QStringLiteral("000,KO,C:/a,b")));
    const QByteArray shorter = serialised(QStringLiteral("000,CH,D:/b"));
    add("old-tail", shorter + fresh.mid(shorter.size()));
    QByteArray windows = serialised(QStringLiteral("000,EN,C:/\u0A05\u010A"));
    add("windows", windows.replace("\n", "\r\n"));
    add("dropped-byte", serialised(QStringLiteral("000,CH,C:/\u4E0D")));
    add("short", serialised(QStringLiteral("000")));
    add("null", serialised(QString()));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: make_seeds FOLDER\n", stderr);
        return 2;
    }
    const Seeds seeds{QString::fromLocal8Bit(argv[1])};
    addConfigurationRecords(seeds);
    return 0;
}
