#include "voorbeeldproef.h"

#include <QProcess>

namespace lauwerkrans::proef {

QByteArray LeesMet(const std::string& opdracht, const std::string& pad) {
    QStringList woorden = QProcess::splitCommand(QString::fromStdString(opdracht));
    const QString programma = woorden.takeFirst();
    woorden.append(QString::fromStdString(pad));
    if (programma == QStringLiteral("pdftotext")) woorden.append(QStringLiteral("-"));
    QProcess lezer;
    lezer.start(programma, woorden);
    if (!lezer.waitForFinished() || lezer.exitCode() != 0) throw std::runtime_error(opdracht);
    return lezer.readAllStandardOutput();
}

} // namespace lauwerkrans::proef
