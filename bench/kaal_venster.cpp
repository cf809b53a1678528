// The least that a window can be: one of the size of the program's, with one label. The start of
// the program is measured beside it (bench/begin.py).
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    QApplication toepassing(argc, argv);
    QWidget venster;
    venster.resize(861, 480); // the program's 12915 x 7200 twips
    const QLabel tekst(QStringLiteral("Lauwerkrans"), &venster);
    venster.show();
    return QApplication::exec();
}
