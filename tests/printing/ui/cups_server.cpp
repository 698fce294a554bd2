#include "cups_server.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QtTest/QTest>

namespace padral::test {
namespace {

constexpr int Plazo = 20000;  // milliseconds

const char* const PpdVirtual = "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd";
const char* const MotorVirtual = "/usr/lib/cups/backend/cups-pdf";
const char* const Servidor = "/usr/sbin/cupsd";

// The backend looks for its settings by the name of the queue, in this folder alone.
QString AjustesMotor() {
    return QStringLiteral("/etc/cups/cups-pdf-%1.conf").arg(ServidorCups::Cola());
}

// The client library keeps the address for the life of the process.
QString Conexion() {
    return QDir::temp().filePath(
        QStringLiteral("padral-cups-%1.sock").arg(QCoreApplication::applicationPid()));
}

void Escribir(const QString& nombre, const QString& texto) {
    QFile fichero(nombre);
    if (fichero.open(QIODevice::WriteOnly)) fichero.write(texto.toUtf8());
}

QString Ejecutar(const QString& programa, const QStringList& argumentos) {
    QProcess proceso;
    proceso.start(programa, argumentos);
    const bool bien = proceso.waitForFinished(Plazo) && proceso.exitCode() == 0;
    return bien ? QString()
                : programa + QStringLiteral(": ") +
                      QString::fromUtf8(proceso.readAllStandardError()).trimmed();
}

}  // namespace

QString ServidorCups::Cola() {
    return QStringLiteral("padral-prueba-%1").arg(QCoreApplication::applicationPid());
}

ServidorCups::ServidorCups() {
    motivo_ = queFalta();
    if (!motivo_.isEmpty()) return;
    escribirConfiguracion();
    motivo_ = arrancar();
    if (motivo_.isEmpty()) motivo_ = anadirCola();
}

ServidorCups::~ServidorCups() {
    if (Listo() && servidor_.state() == QProcess::Running)
        Ejecutar(QStringLiteral("/usr/sbin/lpadmin"), {QStringLiteral("-x"), Cola()});
    Parar();
    if (::geteuid() == 0) QFile::remove(AjustesMotor());
}

void ServidorCups::Parar() {
    if (servidor_.state() == QProcess::NotRunning) return;
    servidor_.terminate();
    if (!servidor_.waitForFinished(Plazo)) servidor_.kill();
    QFile::remove(Conexion());
}

void ServidorCups::RechazarTrabajos() {
    Ejecutar(QStringLiteral("/usr/sbin/cupsreject"), {Cola()});
}

QString ServidorCups::queFalta() const {
    if (::geteuid() != 0) return QStringLiteral("cupsd and its PDF backend need root");
    for (const char* fichero : {Servidor, MotorVirtual, PpdVirtual, "/usr/sbin/lpadmin"})
        if (!QFile::exists(QFile::decodeName(fichero)))
            return QStringLiteral("%1 is missing (packages cups, printer-driver-cups-pdf)")
                .arg(QFile::decodeName(fichero));
    return {};
}

void ServidorCups::escribirConfiguracion() const {
    // The filters run as a user of their own.
    QFile::setPermissions(carpeta_.path(), QFile::permissions(carpeta_.path()) | QFile::ReadOther |
                                               QFile::ExeOther | QFile::ReadGroup |
                                               QFile::ExeGroup);
    for (const auto* nombre : {u"root", u"spool", u"cache", u"state", u"log", u"out"})
        QDir(carpeta_.path()).mkpath(QString::fromUtf16(nombre));
    const QString raiz = carpeta_.path();
    Escribir(ruta(QStringLiteral("cupsd.conf")),
             QStringLiteral("Listen %1\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
                            "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n"
                            "<Location />\nOrder allow,deny\nAllow all\n</Location>\n")
                 .arg(Conexion()));
    Escribir(ruta(QStringLiteral("cups-files.conf")),
             QStringLiteral("ServerRoot %1/root\nRequestRoot %1/spool\nCacheDir %1/cache\n"
                            "StateDir %1/state\nAccessLog %1/log/access\nErrorLog %1/log/error\n"
                            "PageLog %1/log/page\nSystemGroup root\n")
                 .arg(raiz));
    Escribir(AjustesMotor(), QStringLiteral("Out %1/out\nAnonDirName %1/out\nSpool %1/spool/pdf\n"
                                            "Log %1/log\n")
                                 .arg(raiz));
}

QString ServidorCups::arrancar() {
    const QString conexion = Conexion();
    qputenv("CUPS_SERVER", QFile::encodeName(conexion));
    servidor_.start(QFile::decodeName(Servidor),
                    {QStringLiteral("-f"), QStringLiteral("-c"), ruta(QStringLiteral("cupsd.conf")),
                     QStringLiteral("-s"), ruta(QStringLiteral("cups-files.conf"))});
    const bool vivo = QTest::qWaitFor(
        [&] { return QFile::exists(conexion) || servidor_.state() == QProcess::NotRunning; },
        Plazo);
    if (vivo && QFile::exists(conexion)) return {};
    return QStringLiteral("cupsd does not run here: ") +
           QString::fromUtf8(servidor_.readAllStandardError()).trimmed();
}

QString ServidorCups::anadirCola() {
    const QString fallo = Ejecutar(
        QStringLiteral("/usr/sbin/lpadmin"),
        {QStringLiteral("-p"), Cola(), QStringLiteral("-E"), QStringLiteral("-v"),
         QStringLiteral("cups-pdf:/") + Cola(), QStringLiteral("-P"), QFile::decodeName(PpdVirtual),
         // The other renderers lose the characters behind the glyphs.
         QStringLiteral("-o"), QStringLiteral("pdftops-renderer-default=pdftocairo")});
    if (!fallo.isEmpty()) return fallo;
    return Ejecutar(QStringLiteral("/usr/sbin/lpadmin"), {QStringLiteral("-d"), Cola()});
}

QStringList ServidorCups::EsperarFicheros(int cuantos) const {
    const QDir salida(ruta(QStringLiteral("out")));
    // A file that has its end is complete.
    const auto completos = [&] {
        QStringList lista;
        for (const auto& nombre : salida.entryList({QStringLiteral("*.pdf")}, QDir::Files)) {
            QFile fichero(salida.filePath(nombre));
            if (fichero.open(QIODevice::ReadOnly) && fichero.readAll().contains("%%EOF"))
                lista << fichero.fileName();
        }
        return lista;
    };
    const bool todos = QTest::qWaitFor([&] { return completos().size() >= cuantos; }, Plazo);
    if (!todos) qWarning("the print server did not finish in time");
    return completos();
}

}  // namespace padral::test
