// picture_painter FOLDER: paints every picture into FOLDER, at its size and, beside it, at twice its size.

#include "tools/pictures/gif_writer.h"
#include "tools/pictures/icons.h"
#include "tools/pictures/picture_table.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>

#include <cstdio>

namespace {

bool save(const QImage& image, const QString& path)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (path.endsWith(QStringLiteral(".gif")))
        file.write(gifData(image));
    else
        image.save(&file, "PNG", 0); // the smallest file
    return file.commit();
}

QString densePath(const QString& path)
{
    const QFileInfo file(path);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral("@2x.") + file.suffix();
}

/// The path that could not be written; empty if all could.
QString paintAll(const QDir& folder)
{
    for (const Picture& picture : allPictures()) {
        QString path = folder.filePath(picture.path);
        if (!save(paintPicture(picture, 1), path) || !save(paintPicture(picture, 2), densePath(path)))
            return path;
    }
    for (const int size : iconSizes) {
        QString path = folder.filePath(iconPath(size));
        const QImage icon = paintIcon(size);
        if (icon.isNull() || !save(icon, path))
            return path;
    }
    return {};
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: picture_painter FOLDER\n");
        return 2;
    }
    const QString failed = paintAll(QDir(QString::fromLocal8Bit(argv[1])));
    if (failed.isEmpty())
        return 0;
    std::fprintf(stderr, "cannot paint %s\n", qUtf8Printable(failed));
    return 1;
}
