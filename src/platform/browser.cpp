#include "platform/browser.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace padral {

namespace {

constexpr int EsperaConsulta = 3000;  // milliseconds

// The desktop's opener is there without any browser too. Where nothing can be asked it is trusted.
bool hayParaPaginas() {
    const QString consulta = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (consulta.isEmpty()) return true;
    QProcess proceso;
    proceso.start(consulta, {QStringLiteral("query"), QStringLiteral("default"),
                             QStringLiteral("text/html")});
    if (!proceso.waitForFinished(EsperaConsulta)) return true;
    return !proceso.readAllStandardOutput().trimmed().isEmpty();
}

// An entry with arguments of its own is left to the desktop's opener.
QString elegidoPorUsuario() {
    const QString elegidos = qEnvironmentVariable("BROWSER");
    for (const QString& nombre : elegidos.split(u':', Qt::SkipEmptyParts)) {
        const QString programa = QStandardPaths::findExecutable(nombre);
        if (!programa.isEmpty()) return programa;
    }
    return {};
}

bool esDeLaRed(const QString& pagina) {
    return pagina.startsWith(QStringLiteral("https://")) ||
           pagina.startsWith(QStringLiteral("http://"));
}

}  // namespace

QString NavegadorSistema::Buscar(const QString& pagina) {
    if (!esDeLaRed(pagina) && !QFileInfo(pagina).isFile()) return {};
    QString programa = elegidoPorUsuario();
    if (!programa.isEmpty()) return programa;
    programa = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!programa.isEmpty() && hayParaPaginas()) return programa;
    return QStandardPaths::findExecutable(QStringLiteral("x-www-browser"));
}

bool NavegadorSistema::Abrir(const QString& programa, const QString& pagina) {
    QProcess proceso;
    proceso.setProgram(programa);
    proceso.setArguments({pagina});
    // What a browser writes to its terminal is none of this program's output.
    proceso.setStandardOutputFile(QProcess::nullDevice());
    proceso.setStandardErrorFile(QProcess::nullDevice());
    return proceso.startDetached();
}

}  // namespace padral
