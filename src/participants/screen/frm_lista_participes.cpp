#include "participants/screen/frm_lista_participes.h"

#include "core/field_rules.h"
#include "store/list/dec_lista_criteria.h"
#include "ui/section_buttons.h"

namespace padral {

namespace {

enum : int {
    AyudaLista = 617,
    ParticipesEnLista = 618,
    AyudaBusqueda = 619,
    TextoResultado = 620,
    TextoBuscar = 621,
};

constexpr int MaximoParticipes = 100;

SvrVuelco::cDeclaSvr servidor(const EstadoCompartido& estado) {
    SvrVuelco::cDeclaSvr svr;
    svr.mdbname = estado.RutaBDModificacion;
    return svr;
}

}  // namespace

// What was not saved leaves no trace in the file. Nothing hangs on it, so a file that is busy or
// fails is left alone: the next list replaces these rows.
frmListaParticipes::~frmListaParticipes() {
    if (!auxiliar_) return;
    auto auxiliar = servidor(estado_);
    auxiliar.busyTimeout = 0;
    try {
        auxiliar.InsertarParticipes(*auxiliar_, {});
    } catch (const std::exception& fallo) {
        qWarning("The auxiliary list of participants stays: %s", fallo.what());
    }
}

void frmListaParticipes::Cargar() {
    Anadir_captions();
    lista_.InicializarListaParticipes();
    if (!enBusqueda()) CargarflxParticipes();
    PresentaDatos();
    Presentabotones();
}

Tabla frmListaParticipes::filasDeColeccion() const {
    Tabla filas(static_cast<int>(TablaParticipe().size()));
    for (const auto& participe : declaracion_.participantes.colParticipes)
        if (participe->Modo != QStringLiteral("E"))
            filas.Anadir(FilaDe<DatosParticipe>(*participe, TablaParticipe()));
    return filas;
}

void frmListaParticipes::CargarflxParticipes() {
    const Tabla filas = filasDeColeccion();
    lista_.NUMPARTLIST = declaracion_.general.NumParti = declaracion_.NumParti =
        static_cast<qint16>(filas.Filas());
    if (filas.Filas() > 0) PresentarFilas(filas);
}

void frmListaParticipes::CargarflxParticipesAux() {
    const auto auxiliar = servidor(estado_);
    auxiliar_ = declaracion_.csde;
    auxiliar.InsertarParticipes(*auxiliar_, filasDeColeccion());
    Tabla filas;
    const QString cuantas =
        auxiliar.DameParticipesAux(declaracion_.csde, ObtenerCriterios(), filas,
                                   QString::number(lista_.ORDEN), lista_.TIPOORDEN);
    lista_.NUMPARTLIST = static_cast<qint16>(cuantas.toInt());
    PresentarFilas(filas);
}

SvrVuelco::CriteriosParticipes frmListaParticipes::ObtenerCriterios() const {
    SvrVuelco::CriteriosParticipes criterios;
    for (std::size_t columna = 0; columna < criterios.size(); ++columna)
        criterios[columna] = CriterioDe(lista_, static_cast<int>(columna));
    return criterios;
}

void frmListaParticipes::PresentarFilas(const Tabla& filas) { modelo_->MostrarFilas(filas); }

void frmListaParticipes::PresentaDatos() {
    if (enBusqueda())
        PresentaDatos2();
    else
        PresentaDatosTablaAux();
}

void frmListaParticipes::PresentaDatosTablaAux() {
    presentarLista();
    presentarFlecha();
    lblayuda_->setText(Texto(AyudaLista));
    lblResultado_->setText(LineaResultado(estado_, lista_, ModeloParticipes::Nombre,
                                          lista_.NUMPARTLIST, ParticipesEnLista));
}

void frmListaParticipes::PresentaDatos2() {
    presentarCriterios();
    presentarFlecha();
    lblayuda_->setText(Texto(AyudaBusqueda));
    lblResultado_->clear();
}

// New participants have all the same key: the identifier tells them apart.
int frmListaParticipes::filaPropia() const {
    const int fila = modelo_->FilaDe(lista_.DNI.recortado());
    return fila >= 0 ? fila
                     : BuscarFilaPorValor(*modelo_, ModeloParticipes::Clave, lista_.cspa) - 1;
}

void frmListaParticipes::tomarFila(int fila) {
    lista_.cspa = modelo_->Texto(fila, ModeloParticipes::Clave).toInt();
    lista_.DNI = modelo_->Texto(fila, ModeloParticipes::Dni);
    lista_.NOMBRE = modelo_->Texto(fila, ModeloParticipes::Nombre);
    lista_.DOMICILIO = modelo_->Texto(fila, ModeloParticipes::Domicilio);
    lista_.MUNICIPIO = modelo_->Texto(fila, ModeloParticipes::Municipio);
    lista_.PORCENTAJE = qRound(modelo_->PorcentajeDe(fila));
    Presentabotones();
}

PantallaConLista::Entrada frmListaParticipes::entradaDe(int columna) const {
    const bool dni = columna == ModeloParticipes::Dni;
    return {dni ? decltype(lista_.DNI)::Ancho : decltype(lista_.NOMBRE)::Ancho, &FiltrarTecla};
}

void frmListaParticipes::Presentabotones() {
    const bool busqueda = enBusqueda();
    const bool hayCriterios = lista_.TS_COUNT() > 0;
    // A search shows fewer participants than there are.
    const bool caben =
        lista_.NUMPARTLIST < MaximoParticipes && declaracion_.NumParti < MaximoParticipes;
    acciones_->Habilitar(Nuevo, !busqueda && caben);
    acciones_->Habilitar(Ver, hayEleccion());
    acciones_->Habilitar(Eliminar, hayEleccion());
    salidas_->Habilitar(Siguiente, Marcado(declaracion_.general.AnexoII));
    cmdBuscar_->setEnabled(!busqueda || hayCriterios || lista_.SELECCIONACTUAL != 0);
    cmdBuscar_->setText(Texto(busqueda ? TextoResultado : TextoBuscar));
    cmdTodos_->setEnabled(busqueda || hayCriterios);
}

}  // namespace padral
