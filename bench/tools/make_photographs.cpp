/// Fills a folder with photographs of the simulated imager: make_photographs FOLDER COUNT [plain]
/// Scenes take turns, and so do layouts, raw images and units unless all are to be plain.

#include "simulator/photograph.h"

#include <QDir>
#include <QFile>

#include <cstdio>

int main(int argc, char** argv)
{
    const int count = argc >= 3 ? QByteArray(argv[2]).toInt() : 0;
    const bool plain = argc == 4 && qstrcmp(argv[3], "plain") == 0;
    if (count <= 0 || argc > 4 || (argc == 4 && !plain)) {
        std::fputs("usage: make_photographs FOLDER COUNT [plain]\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!folder.mkpath(QStringLiteral(".")))
        return 1;
    for (int i = 0; i < count; ++i) {
        const simulator::Scene scene(simulator::SceneKind(i % 4), unsigned(i));
        simulator::PhotographSettings settings;
        if (!plain) {
            settings.modelIndex = i / 2 % 2;
            settings.raw = settings.modelIndex == 0 && i % 3 == 0;
            settings.fahrenheit = i % 5 == 0;
        }
        QFile file(folder.filePath(QStringLiteral("IR_%1.bmp").arg(i, 5, 10, QLatin1Char('0'))));
        const QByteArray bytes =
            simulator::photograph(scene.field(i, scene.usualHotSpot()), settings);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return 1;
    }
    return 0;
}
