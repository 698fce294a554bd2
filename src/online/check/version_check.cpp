#include "online/check/version_check.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopedValueRollback>
#include <exception>

#include "platform/ini_file.h"

namespace padral {

namespace {

// Outcomes of the check and of its steps.
constexpr qint16 Buena = 0, SinConexion = 1, Hecha = 3, Fallida = 4;
constexpr int EsperaRotulo = 1000;  // milliseconds, for the splash to show what is going on
constexpr int PartesVersion = 3;
constexpr int TextoSinNavegador = 349, TituloSinNavegador = 350;

QString nombreVersion() { return QStringLiteral("version.ini"); }
QString nombrePagina() { return QStringLiteral("temphtm.HTM"); }

bool quitarFichero(const QString& ruta) {
    const QFileInfo info(ruta);
    return (!info.exists() && !info.isSymLink()) || QFile::remove(ruta);
}

// Texts, not numbers: an older version differs as well, and "01" differs from "1".
bool hayDiferencia(const cActOnline& act) {
    return act.ActVer1.trimmed() != act.ProgVer1.trimmed() ||
           act.ActVer2.trimmed() != act.ProgVer2.trimmed() ||
           act.ActVer3.trimmed() != act.ProgVer3.trimmed();
}

bool esDireccionWeb(const QString& url) {
    return url.startsWith(QStringLiteral("http://"), Qt::CaseInsensitive) ||
           url.startsWith(QStringLiteral("https://"), Qt::CaseInsensitive);
}

// What would end the attribute of the page that the address stands in.
bool saleDelAtributo(char32_t letra) {
    return letra == U'\'' || letra == U'"' || letra == U'<' || letra == U'>' ||
           QChar::category(letra) == QChar::Other_Control;
}

QByteArray paraAtributo(const QString& url) {
    QByteArray bytes;
    for (const char32_t letra : url.toStdU32String()) {
        const QByteArray utf8 = QString::fromUcs4(&letra, 1).toUtf8();
        bytes += saleDelAtributo(letra) ? '%' + utf8.toHex('%').toUpper() : utf8;
    }
    return bytes;
}

bool escribirPagina(const QString& ruta, const QString& url) {
    QSaveFile pagina(ruta);
    if (!pagina.open(QIODevice::WriteOnly)) return false;
    pagina.write(
        "<HTML> "
        " <BODY ONLOAD='document.formulario.submit();'> "
        " <FORM NAME='formulario' action='" +
        paraAtributo(url) +
        "' method=post> "
        " </FORM></BODY> </HTML>");
    return pagina.commit();
}

}  // namespace

ActualizacionOnline::ActualizacionOnline(EstadoCompartido& estado, Descarga& descarga,
                                         Navegador& navegador, DialogosActualizacion dialogos)
    : estado_(estado), descarga_(descarga), navegador_(navegador), dialogos_(std::move(dialogos)) {}

void ActualizacionOnline::ComprobarVersion() {
    if (comprobando_) return;
    const QScopedValueRollback<bool> enCurso(comprobando_, true);
    auto& act = estado_.act;
    estado_.reloj.Esperar(EsperaRotulo);
    const qint16 descarga = DescargarVersionIni();
    if (descarga != Hecha && descarga != SinConexion) return;
    if (descarga == SinConexion || LeerVersionIni() == Fallida) {
        act.SitAct = descarga == SinConexion ? SinConexion : Fallida;
        dialogos_.mostrarSinConexion();
        return;
    }
    // At start a user who is up to date sees nothing; one who asked always gets an answer.
    if (act.ComVer == 1 || dialogos_.preferenciasEnPantalla()) dialogos_.mostrarVersionCheck();
    act.SitAct = Hecha;
}

qint16 ActualizacionOnline::DescargarVersionIni() {
    const QString fichero = enCarpeta(nombreVersion());
    if (!quitarFichero(fichero)) return Fallida;
    const QString letra = estado_.SegunIdioma(QStringLiteral("c"), QStringLiteral("e"));
    const QString url = estado_.act.URLAct + QStringLiteral("?Programa=PADRAL&idioma=") + letra;
    try {
        return DescargarArchivo(url, fichero);
    } catch (const std::exception&) {
        return Fallida;
    }
}

qint16 ActualizacionOnline::DescargarArchivo(const QString& url, const QString& fichero) {
    if (!descarga_.Descargar(url, fichero)) return SinConexion;
    const QFileInfo info(fichero);
    return info.isFile() && info.fileName() == nombreVersion() ? Hecha : SinConexion;
}

QString ActualizacionOnline::LeerValorIni(const QString& seccion, const QString& clave,
                                          const QString& fichero) {
    return padral::LeerValorIni(seccion, clave, fichero);
}

qint16 ActualizacionOnline::LeerVersionIni() {
    const auto valor = [fichero = enCarpeta(nombreVersion())](const QString& clave) {
        return LeerValorIni(QStringLiteral("informacion"), clave, fichero).trimmed();
    };
    const QStringList partes = valor(QStringLiteral("currentversion")).split(u'.');
    if (partes.size() < PartesVersion) return Fallida;
    auto& act = estado_.act;
    act.ActVer1 = partes[0];
    act.ActVer2 = partes[1];
    act.ActVer3 = partes[2];
    act.ActDownloadURL = valor(QStringLiteral("downloadurl"));
    act.ActDescripcion = valor(QStringLiteral("descripcion"));
    if (hayDiferencia(act)) act.ComVer = 1;
    return Buena;
}

void ActualizacionOnline::AbrirPaginaDescarga(const QString& url) {
    if (!abrirPagina(url)) estado_.Avisar(TextoSinNavegador, TituloSinNavegador);
}

// False where no browser opens it.
bool ActualizacionOnline::abrirPagina(const QString& url) {
    const QString pagina = enCarpeta(nombrePagina());
    if (!quitarFichero(pagina) || !esDireccionWeb(url) || !escribirPagina(pagina, url))
        return false;
    const QString programa = navegador_.Buscar(pagina);
    return !programa.isEmpty() && navegador_.Abrir(programa, pagina);
}

QString ActualizacionOnline::enCarpeta(const QString& nombre) const {
    return estado_.CarpetaPrograma + QDir::separator() + nombre;
}

}  // namespace padral
