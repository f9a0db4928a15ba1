// Cuts a square out of one of the program's pictures and writes it as a PNG icon:
//   tarvex-make-icon PICTURE.bmp X Y SIDE SIZE OUT.png
// The square at (X, Y) with sides SIDE pixels is scaled to SIZE x SIZE.
#include <QImage>
#include <QString>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 7) {
        std::fprintf(stderr, "usage: tarvex-make-icon PICTURE X Y SIDE SIZE OUT.png\n");
        return 64;
    }
    const QImage picture(QString::fromLocal8Bit(argv[1]));
    if (picture.isNull()) {
        std::fprintf(stderr, "tarvex-make-icon: can't read %s\n", argv[1]);
        return 1;
    }
    const int x = std::atoi(argv[2]), y = std::atoi(argv[3]), side = std::atoi(argv[4]);
    const int size = std::atoi(argv[5]);
    if (side <= 0 || size <= 0 || !picture.rect().contains(QRect(x, y, side, side))) {
        std::fprintf(stderr, "tarvex-make-icon: the square lies outside %s\n", argv[1]);
        return 1;
    }
    const QImage icon = picture.copy(x, y, side, side)
                            .scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_RGB32);
    if (!icon.save(QString::fromLocal8Bit(argv[6]), "PNG")) {
        std::fprintf(stderr, "tarvex-make-icon: can't write %s\n", argv[6]);
        return 1;
    }
    return 0;
}
