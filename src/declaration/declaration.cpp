#include "declaration/declaration.h"

#include <algorithm>
#include <array>

#include "core/nif.h"
#include "store/declarations_server.h"

namespace padral {

namespace {

constexpr qint32 FechaEdicion2015 = 20150101;

const QString Marca = QStringLiteral("X");
const QString SinMarca = QStringLiteral(" ");

const QString PantallaLista = QStringLiteral("frmListaParticipes");
const QString PantallaParticipe = QStringLiteral("frmDatosParticipe");

}  // namespace

cDeclaraciones::cDeclaraciones(EstadoCompartido& estadoDado, Pantallas& pantallas, cDecLista& lista)
    : estado(estadoDado),
      general(*this),
      apartado2(general, estado.catalogo),
      apartado3(general, estado.catalogo),
      apartado4(general),
      apartado5(general),
      apartado6(general),
      apartado7(general),
      anexoII(general, estado.catalogo),
      parLista(participantes, *this, general, estado.catalogo, estado.RutaBDModificacion),
      pantallas_(pantallas),
      lista_(lista) {}

void cDeclaraciones::InicializarDeclaracion() {
    general.InicializarDatosGenerales();
    general.IniciarVarGen();
    blanquearApartados();
}

void cDeclaraciones::blanquearApartados() {
    apartado2.ResetForNewDeclaration();
    apartado3.ResetForNewDeclaration();
    apartado4.ResetForNewDeclaration();
    apartado5.ResetForNewDeclaration();
    apartado6.ResetForNewDeclaration();
    apartado7.ResetForNewDeclaration();
    anexoII.ResetForNewDeclaration();
    participantes.ParticipeActual = nuevoParticipe();
    parLista.Inicializar();
    parLista.LimpiarTablaParticipes();
}

void cDeclaraciones::CargarDeclaracion() {
    SvrDPadral::FilasDeclaracion filas;
    {
        SvrDPadral::cDeclaracionesSvr servidor;
        servidor.mdbname = estado.RutaBDModificacion;
        servidor.CargarDeclaracion(csde, filas);
    }
    // Where a row has no province, a record keeps the one that it has: it must not be that of the
    // declaration before.
    blanquearApartados();
    general.CargarDatos(filas.general, filas.numParti);
    apartado2.CargarDatos(filas.apartado2);
    apartado3.CargarDatos(filas.apartado3);
    apartado4.CargarDatos(filas.apartado4);
    apartado5.CargarDatos(filas.apartado5);
    apartado6.CargarDatos(filas.apartado6);
    apartado7.CargarDatos(filas.apartado7);
    parLista.CargarDatos(filas.participes);
    anexoII.CargarDatos(filas.anexoII);
    participantes.ParticipeActual = nuevoParticipe();
}

qint32 cDeclaraciones::GuardarDeclaracion() {
    SvrDPadral::FilasDeclaracion filas;
    filas.general = general.ObtenerDatos();
    filas.apartado2 = apartado2.ObtenerDatos();
    filas.apartado3 = apartado3.ObtenerDatos();
    filas.apartado4 = apartado4.ObtenerDatos();
    filas.apartado5 = apartado5.ObtenerDatos();
    filas.apartado6 = apartado6.ObtenerDatos();
    filas.apartado7 = apartado7.ObtenerDatos();
    filas.anexoII = anexoII.ObtenerDatos();
    SvrDPadral::cDeclaracionesSvr servidor;
    servidor.mdbname = estado.RutaBDModificacion;
    return servidor.GuardarDeclaracion(filas);
}

void cDeclaraciones::MarcarApartados() {
    const auto marcar = [](QString& bandera, bool lleno) { bandera = lleno ? Marca : SinMarca; };
    marcar(general.Apartado2, apartado2.Lleno);
    marcar(general.Apartado3, apartado3.Lleno);
    marcar(general.Apartado4, apartado4.Lleno);
    marcar(general.Apartado5, apartado5.APARTADO5LLENO);
    marcar(general.Apartado6, apartado6.Lleno);
    marcar(general.Apartado7, apartado7.Lleno);
    marcar(general.AnexoI, NumParti != 0);
    marcar(general.AnexoII, anexoII.Lleno);
}

void cDeclaraciones::GuardarParticipes(qint32 clave) {
    for (const auto& participe : participantes.colParticipes) {
        participantes.ParticipeActual = participe;
        guardarParticipe(*participe, clave);
    }
}

void cDeclaraciones::guardarParticipe(cParticipes& participe, qint32 clave) {
    const QString modo = participe.Modo.recortado();
    const bool alta = modo == QStringLiteral("A"), consulta = modo == QStringLiteral("C");
    if (modo == QStringLiteral("E") && Modo == QStringLiteral("C") && participe.cspa != 0)
        participe.EliminarParticipe();
    if (!alta && !consulta) return;
    participe.csde = clave;
    // A copy adds even those that its source has in the store.
    if (alta || Modo == QStringLiteral("A") || participe.cspa == 0)
        participe.AñadirParticipe();
    else
        participe.ModificarParticipe();
}

QString cDeclaraciones::PantallaApartado(int numero) const {
    const bool edicion2015 = general.FECHAVIGOR >= FechaEdicion2015;
    switch (numero) {
        case 2:
            return QStringLiteral("FrmApartado2");
        case 3:
            return edicion2015 ? QStringLiteral("FrmApartado3_2015")
                               : QStringLiteral("FrmApartado3");
        case 4:
            return edicion2015 ? QStringLiteral("frmApartado4_2015")
                               : QStringLiteral("frmApartado4");
        case 5:
            return edicion2015 ? QStringLiteral("frmApartado5_2015")
                               : QStringLiteral("frmApartado5");
        case 6:
            return QStringLiteral("frmApartado6");
        case 7:
            return QStringLiteral("FrmApartado7");
        default:
            return {};
    }
}

namespace {

/// Flag of section 2 to 7.
const QString& bandera(const cDatosGenerales& g, int numero) {
    static constexpr std::array<QString DatosGeneralesStore::*, 6> Banderas = {
        &DatosGeneralesStore::Apartado2, &DatosGeneralesStore::Apartado3,
        &DatosGeneralesStore::Apartado4, &DatosGeneralesStore::Apartado5,
        &DatosGeneralesStore::Apartado6, &DatosGeneralesStore::Apartado7};
    return g.*Banderas[static_cast<std::size_t>(numero - 2)];
}

}  // namespace

bool cDeclaraciones::mostrar(const QString& pantalla) {
    if (!pantallas_.Disponible(pantalla)) return false;
    pantallas_.Mostrar(pantalla);
    return true;
}

void cDeclaraciones::IrApartadoAnterior(int numero, const QString& nombreFormulario) {
    // The name goes first: the screen shown looks where the user comes from when it loads.
    estado.FormularioOrigen = nombreFormulario;
    if (numero < 2 || numero > 10) return;
    if (numero == 10 && Marcado(general.AnexoI)) {
        pantallas_.Mostrar(general.NumParti > 0 ? PantallaLista : prepararParticipe());
        return;
    }
    if (numero >= 9 && general.NumParti > 0) {
        pantallas_.Mostrar(PantallaLista);
        return;
    }
    for (int n = std::min(numero, 8); n > 2; --n)
        if (Marcado(bandera(general, n - 1)) && mostrar(PantallaApartado(n - 1))) return;
    pantallas_.Mostrar(QStringLiteral("FrmDatGen"));
}

bool cDeclaraciones::IrApartadoSiguiente(int numero) {
    if (numero < 2 || numero > 8) return false;
    for (int n = numero; n < 7; ++n)
        if (Marcado(bandera(general, n + 1)) && mostrar(PantallaApartado(n + 1))) return true;
    if (numero <= 7 && Marcado(general.AnexoI) && pantallas_.Disponible(PantallaAnexoI())) {
        pantallas_.Mostrar(PrepararAnexoI());
        return true;
    }
    return Marcado(general.AnexoII) && mostrar(QStringLiteral("frmAnexoII"));
}

QString cDeclaraciones::PantallaAnexoI() const {
    return NumParti != 0 ? PantallaLista : PantallaParticipe;
}

QString cDeclaraciones::PrepararAnexoI() {
    return NumParti != 0 ? PantallaLista : prepararParticipe();
}

cParticipes& cDeclaraciones::EmpezarParticipe() {
    participantes.ParticipeActual = nuevoParticipe();
    participantes.ParticipeActual->Modo = QStringLiteral("A");
    return *participantes.ParticipeActual;
}

QString cDeclaraciones::prepararParticipe() {
    EmpezarParticipe().MODIFPARTICIPES = true;
    return PantallaParticipe;
}

std::shared_ptr<cParticipes> cDeclaraciones::nuevoParticipe() {
    auto participe = std::make_shared<cParticipes>(participantes, estado.RutaBDModificacion);
    participe->InicializarDatos();
    return participe;
}

void cDeclaraciones::cambiarNumParti(int cambio) {
    NumParti = static_cast<qint16>(NumParti + cambio);
    general.NumParti = NumParti;
    parLista.NUMPARTLIST = NumParti;
}

void cDeclaraciones::LimpiarModos() {
    Modo.clear();
    lista_.Modo = QString();
    if (participantes.ParticipeActual) participantes.ParticipeActual->Modo = QString();
}

bool cDeclaraciones::AnexoIForzado() const {
    const QString letra = general.DNI.left(1);
    const QString& c = general.Causa1;
    if (letra == QStringLiteral("E") && (c == QStringLiteral("P") || c == QStringLiteral("I")))
        return true;
    const int clase = ClasificarNif(letra);
    const bool causa = apartado6.CAUSA == 10 || apartado6.CAUSA == 99;
    return c == QStringLiteral("C") && (clase == 2 || clase == 3) && causa;
}

bool cDeclaraciones::MarcarAnexoPorCese() {
    const bool forzado = AnexoIForzado();
    if (forzado) general.AnexoI = Marca;
    return forzado;
}

bool cDeclaraciones::HayModificaciones() const {
    const auto modificado = [](const auto& participe) {
        return participe && participe->MODIFPARTICIPES;
    };
    return estado.ModificacionesPendientes || apartado2.Modificaciones ||
           apartado3.Modificaciones || apartado4.MODIFAPARTADO4 || apartado5.MODIFAPARTADO5 ||
           apartado6.MODIFAPARTADO6 || apartado7.Modificaciones ||
           modificado(participantes.ParticipeActual) ||
           std::ranges::any_of(participantes.colParticipes, modificado);
}

}  // namespace padral
