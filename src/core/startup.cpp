#include "core/startup.h"

#include <QDir>

#include "core/shared_state.h"
#include "platform/failure.h"
#include "platform/file_version.h"
#include "platform/program_folder.h"
#include "store/transfer_server.h"

namespace padral {

namespace {

constexpr int TextoSinVersion = 331;

QString unir(const std::array<quint16, 4>& v) {
    return QStringLiteral("%1.%2.%3.%4").arg(v[0]).arg(v[1]).arg(v[2]).arg(v[3]);
}

}  // namespace

void ObtenerVersionPrograma(EstadoCompartido& estado, const QString& carpeta) {
    estado.act.ActFile = carpeta + QDir::separator() + QStringLiteral("DPadral.exe");
    const auto version = LeerVersion(estado.act.ActFile);
    if (!version) {
        estado.avisador.Mostrar(
            {estado.Texto(TextoSinVersion), QString(), Icono::Ninguno, Botones::Aceptar});
        return;
    }
    const auto& v = version->fichero;
    // The third word of the file version is left out.
    estado.act.ProgVer1 = QString::number(v[0]);
    estado.act.ProgVer2 = QString::number(v[1]);
    estado.act.ProgVer3 = QString::number(v[3]);
    estado.VersionPrograma =
        estado.act.ProgVer1 + u'.' + estado.act.ProgVer2 + u'.' + estado.act.ProgVer3;
    estado.VersionProducto = unir(version->producto);
}

void ObtenerRutas(EstadoCompartido& estado) {
    const QChar separador = QDir::separator();
    estado.RutaTablas =
        BaseTablas(estado.CarpetaPrograma) + separador + QStringLiteral("Tablas") + separador;
    estado.RutaBDLectura = estado.RutaTablas + QStringLiteral("DPadralLec.mdb");
    estado.RutaBDModificacion = estado.RutaTablas + QStringLiteral("DPadralMod.mdb");
}

bool TraspasarDatos(EstadoCompartido& estado) {
    SvrDPadral::cTraspaso traspaso;
    traspaso.mdbmod = estado.RutaBDModificacion;
    traspaso.mdbPath = estado.RutaTablas;
    try {
        return traspaso.Traspaso();
    } catch (const Fallo& fallo) {
        const QString marca = QStringLiteral("ComprobarBDVersion\n");
        throw Fallo(marca + fallo.Castellano(), marca + fallo.Euskera());
    }
}

void InicializarSesion(EstadoCompartido& estado) {
    estado.mdi.InicializarContadores();
    estado.mdi.LeerFechaMinimaMaxima();
    estado.act.ObtenerURLAct(estado.RutaBDLectura);
    estado.mdi.LeerIdioma();
    estado.act.LeerActOnline(estado.RutaBDModificacion);
    estado.DesplazamientoIdioma =
        estado.mdi.IDI() == QStringLiteral("E") ? CatalogoTextos::DesplazamientoEuskera : qint16{0};
    estado.fecha.fecidioma = estado.mdi.IDI();
}

}  // namespace padral
