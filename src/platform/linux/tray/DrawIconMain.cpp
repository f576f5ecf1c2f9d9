#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTextStream>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

/// What panels are made for, and twice the usual ones.
constexpr std::array sizes{16, 22, 24, 32, 44, 48, 64, 128};

QImage drawing(const QString& file, int size)
{
    QImageReader reader(file, "svg");
    reader.setScaledSize({size, size});
    const auto image = reader.read();
    if (image.isNull()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(file), qPrintable(reader.errorString()));
        std::exit(EXIT_FAILURE);
    }
    return image.convertToFormat(QImage::Format_ARGB32);
}

void writePixels(QTextStream& source, const QImage& image)
{
    source << "constexpr std::uint32_t pixels" << image.width() << "[] = {\n";
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            source << "0x" << QString::number(image.pixel(x, y), 16) << ",";
        source << "\n";
    }
    source << "};\n";
}

void writeSource(QTextStream& source, const QString& drawn)
{
    source << "#include \"platform/linux/tray/IconPictures.h\"\n\nnamespace brindlex {\n"
              "namespace {\n\n";
    for (const auto size : sizes)
        writePixels(source, drawing(drawn, size));
    source << "constexpr IconPicture pictures[] = {\n";
    for (const auto size : sizes)
        source << "    {" << size << ", pixels" << size << "},\n";
    source << "};\n\n} // namespace\n\n"
              "std::span<const IconPicture> iconPictures() { return pictures; }\n\n"
              "} // namespace brindlex\n";
}

} // namespace

/// Part of the build: writes the source with the pictures of an icon.
///
///     brindlex_draw_icon <SVG file> <source>
int main(int count, char** arguments)
{
    if (count != 3)
        return EXIT_FAILURE;
    QFile file(QString::fromLocal8Bit(arguments[2]));
    if (!file.open(QIODevice::WriteOnly))
        return EXIT_FAILURE;
    QTextStream source(&file);
    writeSource(source, QString::fromLocal8Bit(arguments[1]));
    source.flush();
    return file.error() == QFile::NoError ? EXIT_SUCCESS : EXIT_FAILURE;
}
