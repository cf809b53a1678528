#include "voorbeeldproef.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

namespace lauwerkrans::proef {

namespace {

/// The path of a file "C:\..." outside wine.
QString PadBuitenWine(const std::string& pad) {
    QString deel = QString::fromStdString(pad).replace(QLatin1Char('\\'), QLatin1Char('/'));
    deel[0] = deel[0].toLower();
    return qEnvironmentVariable("WINEPREFIX") + QStringLiteral("/dosdevices/") + deel;
}

} // namespace

/// wine starts a program of the machine without waiting for it and without its output. So a script
/// puts that into a file, which gets its name when it is whole; an error leaves an empty one.
QByteArray LeesMet(const std::string& opdracht, const std::string& pad) {
    constexpr int geduld = 60'000; // milliseconds
    const QString hier = QString::fromStdString(pad);
    const QByteArray buiten = PadBuitenWine(pad).toUtf8();
    QFile antwoord(hier + QStringLiteral(".gelezen"));
    QFile script(hier + QStringLiteral(".sh"));
    if (!script.open(QIODevice::WriteOnly)) throw std::runtime_error("script");
    const QByteArray naar = opdracht.starts_with("pdftotext") ? "' - >deel" : "' >deel";
    script.write("cd \"${0%/*}\"\n" + QByteArray::fromStdString(opdracht) + " '" + buiten + naar +
                 " || : >deel\nmv deel '" + buiten + ".gelezen'\n");
    script.close();
    QProcess::execute(
        QStringLiteral("start.exe"),
        {QStringLiteral("/unix"), QStringLiteral("/bin/sh"), QString::fromUtf8(buiten + ".sh")});
    QElapsedTimer klok;
    klok.start();
    while (!antwoord.exists() && klok.elapsed() < geduld)
        QThread::msleep(20);
    if (!antwoord.open(QIODevice::ReadOnly)) throw std::runtime_error(opdracht);
    const QByteArray bytes = antwoord.readAll();
    antwoord.remove(); // closes it too
    script.remove();
    if (bytes.isEmpty()) throw std::runtime_error(opdracht);
    return bytes;
}

} // namespace lauwerkrans::proef
