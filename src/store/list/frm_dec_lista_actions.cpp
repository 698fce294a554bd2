// The commands of the declarations list: open, copy, new, delete, order, leave.

#include "store/list/frm_dec_lista.h"

namespace padral {

namespace {

enum : int {
    PreguntaEliminar = 591,
    TituloPregunta = 592,
};

const QString EstaPantalla = QStringLiteral("FrmDecLista");
const QString DatosGenerales = QStringLiteral("FrmDatGen");
const QString Consulta = QStringLiteral("C");
const QString Alta = QStringLiteral("A");

}  // namespace

void FrmDecLista::conectarBotones() {
    Orden(cmdVerDeclaracion_, [this] { abrir(Consulta, lista_.csde, false); });
    Orden(CmdCopiarDeclaracion_, [this] { abrir(Alta, lista_.csde, true); });
    Orden(CmdNuevo_, [this] { abrir(Alta, 0, true); });
    Orden(CmdEliminar_, [this] { eliminar(); });
    Orden(cmdAnterior_, [this] { salir(); });
    Orden(cmdBuscar_, [this] { pulsarBuscar(); });
    Orden(cmdTodos_, [this] { verTodos(); });
}

void FrmDecLista::abrir(const QString& modo, qint32 clave, bool pendiente) {
    declaracion_.Modo = modo;
    declaracion_.csde = clave;
    if (pendiente) estado_.ModificacionesPendientes = true;
    estado_.FormularioOrigen = EstaPantalla;
    pantallas_.Mostrar(DatosGenerales);
    pantallas_.Descargar(EstaPantalla);
}

void FrmDecLista::accionDeFila() {
    if (!listaConFilas() || !lista_.HaySeleccion()) return;
    const Espera espera(pantallas_);
    if (lista_.EnBaja())
        eliminar();
    else
        abrir(Consulta, lista_.csde, false);
}

void FrmDecLista::eliminar() {
    const Mensaje pregunta{Texto(PreguntaEliminar), Texto(TituloPregunta), Icono::Exclamacion,
                           Botones::SiNo};
    if (estado_.avisador.Mostrar(pregunta) != Respuesta::Si) return;
    lista_.EliminarParticipes(lista_.csde);
    lista_.EliminarDeclaracion(lista_.csde);
    --estado_.mdi.NUMDECLA;
    if (estado_.mdi.NUMDECLA < 1) {
        salir();
        return;
    }
    PresentaDatos();
    Presentabotones();
}

void FrmDecLista::salir() {
    pantallas_.HabilitarMenus();
    pantallas_.Descargar(EstaPantalla);
}

}  // namespace padral
