// The buttons of the general data screen: sections, save, print, leave.

#include "declaration/screen/frm_dat_gen.h"

namespace padral {

namespace {

const QString EstaPantalla = QStringLiteral("FrmDatGen");
const QString VentanaPrincipal = QStringLiteral("MDIPadral");

constexpr int NumeroAnexoI = 8;
constexpr int NumeroAnexoII = 10;

}  // namespace

void FrmDatGen::conectarBotones() {
    for (std::size_t i = 0; i < botonesApartado_.size(); ++i)
        Orden(botonesApartado_[i], [this, i] { abrirApartado(CasillasApartado()[i]); });
    Orden(cmdAceptar_, [this] { aceptar(); });
    Orden(cmdCancelar_, [this] { cancelar(); });
    Orden(cmdImprimir_, [this] { imprimir(); });
    Orden(cmdAnterior_, [this] { anterior(); });
    Orden(PicOKey_, cmdAceptar_);
    Orden(PicCan_, cmdCancelar_);
    Orden(PicImprimir_, cmdImprimir_);
    Orden(PicAnterior_, cmdAnterior_);
}

QString FrmDatGen::pantallaDe(const CasillaApartado& casilla) const {
    if (casilla.numero == NumeroAnexoI) return declaracion_.PantallaAnexoI();
    if (casilla.numero == NumeroAnexoII) return QStringLiteral("frmAnexoII");
    return declaracion_.PantallaApartado(casilla.numero);
}

void FrmDatGen::abrirApartado(const CasillaApartado& casilla) {
    if (!ValidacionIntroduccionDatos(true) || !ValidarCausas()) return;
    if (casilla.numero == NumeroAnexoI) declaracion_.PrepararAnexoI();
    pantallas_.Mostrar(pantallaDe(casilla));
    pantallas_.Descargar(EstaPantalla);
}

bool FrmDatGen::sociedadesYExentas() {
    const QString si = QStringLiteral("S");
    if (declaracion_.apartado5.SOCIEDADES != si || declaracion_.apartado5.EXENTASOCI != si)
        return false;
    estado_.Avisar(692, 83);
    return true;
}

bool FrmDatGen::validarAntesDeGuardar() {
    if (NombreVacio()) {
        estado_.Avisar(536, 537);
        enfocar(QStringLiteral("txtNombre"));
        return false;
    }
    if (general_.FECHADECLARACION == 0) {
        estado_.Avisar(516, 517);
        enfocar(QStringLiteral("mskFechaDeclaracion"));
        return false;
    }
    return ValidacionIntroduccionDatos(true) && ValidarCausas() && ValidarApartados() &&
           ValidarPorcentajes();
}

qint32 FrmDatGen::guardar() {
    declaracion_.MarcarApartados();
    const qint32 clave = declaracion_.GuardarDeclaracion();
    declaracion_.GuardarParticipes(clave);
    return clave;
}

void FrmDatGen::cerrar() {
    declaracion_.csde = 0;
    declaracion_.InicializarDeclaracion();
    declaracion_.LimpiarModos();
    pantallas_.HabilitarMenus();
    estado_.ModificacionesPendientes = false;
    pantallas_.Mostrar(VentanaPrincipal);
    pantallas_.Descargar(EstaPantalla);
}

void FrmDatGen::aceptar() {
    if (sociedadesYExentas()) return;
    AjustarPorFechaVigor(declaracion_);
    if (estado_.ModificacionesPendientes) {
        if (!validarAntesDeGuardar()) return;
        guardar();
    }
    cerrar();
}

void FrmDatGen::cancelar() { cerrar(); }

void FrmDatGen::anterior() {
    if (declaracion_.NumParti == 0) {
        cerrar();
        return;
    }
    const bool listaVacia = lista_.NUMDECLASEL == QStringLiteral("0");
    lista_.ENTRADA = listaVacia ? QStringLiteral("A") : QStringLiteral("P");
    pantallas_.Mostrar(QStringLiteral("FrmDecLista"));
    pantallas_.Descargar(EstaPantalla);
}

void FrmDatGen::imprimir() {
    if (!ValidacionIntroduccionDatos(true) || sociedadesYExentas()) return;
    if (estado_.ModificacionesPendientes) {
        const Mensaje pregunta{Texto(538), Texto(539), Icono::Informacion,
                               Botones::AceptarCancelar};
        if (estado_.avisador.Mostrar(pregunta) != Respuesta::Aceptar) return;
        AjustarPorFechaVigor(declaracion_);
        if (!validarAntesDeGuardar()) return;
        const qint32 clave = guardar();
        estado_.ModificacionesPendientes = false;
        declaracion_.csde = clave;
    }
    pantallas_.Mostrar(QStringLiteral("FrmImOf"));
    pantallas_.Descargar(EstaPantalla);
}

}  // namespace padral
