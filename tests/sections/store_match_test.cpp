// The records and the layout of the declarations file agree, and whole rows make the round trip.

#include "declaration/section6.h"
#include "participants/participant.h"
#include "sections/location/section2.h"
#include "sections/location/section3.h"
#include "sections/record_checks.h"
#include "sections/small_catalogue.h"
#include "sections/tax/annex2.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/section7.h"
#include "store/declarations_server.h"
#include "store/schema.h"

namespace padral::pruebas {
namespace {

using store::ColumnType;

/// What the store must make of a property: a text of variable length keeps "" and " " apart.
template <class R>
bool encaja(const Columna<R>& columna, ColumnType tipo) {
    const QVariant vacio = columna.leer(R{});
    if (vacio.typeId() == QMetaType::Float) return tipo == ColumnType::Real;
    if (vacio.typeId() != QMetaType::QString) return tipo == ColumnType::Integer;
    if (vacio.toString().isEmpty()) return tipo == ColumnType::Text;
    return tipo == ColumnType::Text || tipo == ColumnType::Mark;
}

template <class R>
void comprobarContraElAlmacen(std::span<const Columna<R>> tabla,
                              const store::RecordTable& esquema) {
    SCOPED_TRACE(std::string(esquema.name));
    ASSERT_EQ(tabla.size(), esquema.columns.size());
    for (std::size_t i = 0; i < tabla.size(); ++i) {
        EXPECT_EQ(s(tabla[i].nombre), std::string(esquema.columns[i].name)) << i;
        EXPECT_TRUE(encaja(tabla[i], esquema.columns[i].type)) << s(tabla[i].nombre);
    }
}

TEST(RegistrosYAlmacen, MismasColumnas) {
    const auto& secciones = store::SectionTables();
    comprobarContraElAlmacen(TablaApartado2(), secciones[0]);
    comprobarContraElAlmacen(TablaApartado3(), secciones[1]);
    comprobarContraElAlmacen(TablaApartado4(), secciones[2]);
    comprobarContraElAlmacen(TablaApartado5(), secciones[3]);
    comprobarContraElAlmacen(TablaApartado6(), secciones[4]);
    comprobarContraElAlmacen(TablaApartado7(), secciones[5]);
    comprobarContraElAlmacen(TablaAnexoII(), secciones[6]);
    comprobarContraElAlmacen(TablaParticipe(), store::Participants());
}

struct AlmacenEntero : ConCatalogo {
    SvrDPadral::cDeclaracionesSvr servidor;

    void SetUp() override {
        ConCatalogo::SetUp();
        store::CreateDeclarationsFile(rutaBDModificacion);
        servidor.mdbname = rutaBDModificacion;
    }
    static SvrDPadral::FilasDeclaracion declaracion() {
        EstadoDeclaracion estado;
        SvrDPadral::FilasDeclaracion filas;
        filas.general = cDatosGenerales(estado).ObtenerDatos();
        filas.apartado2 = filaDistinta(TablaApartado2());
        filas.apartado3 = filaDistinta(TablaApartado3());
        filas.apartado4 = filaDistinta(TablaApartado4());
        filas.apartado5 = filaDistinta(TablaApartado5());
        filas.apartado6 = filaDistinta(TablaApartado6());
        filas.apartado7 = filaDistinta(TablaApartado7());
        filas.anexoII = filaDistinta(TablaAnexoII());
        return filas;
    }
};

/// What a record holds after a row has been through the store.
template <class R>
void comprobarIgual(std::span<const Columna<R>> tabla, const Fila& antes, const Fila& despues) {
    R uno, otro;
    CargarDeFila<R>(uno, tabla, antes);
    CargarDeFila<R>(otro, tabla, despues);
    EXPECT_TRUE(uno == otro);
    EXPECT_EQ(despues.size(), static_cast<qsizetype>(tabla.size()));
}

TEST_F(AlmacenEntero, UnaDeclaracionVuelveValorPorValor) {
    const auto filas = declaracion();
    qint32 csde = servidor.GuardarDeclaracion(filas);
    SvrDPadral::FilasDeclaracion leidas;
    servidor.CargarDeclaracion(csde, leidas);
    comprobarIgual(TablaApartado2(), filas.apartado2, leidas.apartado2);
    comprobarIgual(TablaApartado3(), filas.apartado3, leidas.apartado3);
    comprobarIgual(TablaApartado4(), filas.apartado4, leidas.apartado4);
    comprobarIgual(TablaApartado5(), filas.apartado5, leidas.apartado5);
    comprobarIgual(TablaApartado6(), filas.apartado6, leidas.apartado6);
    comprobarIgual(TablaApartado7(), filas.apartado7, leidas.apartado7);
    comprobarIgual(TablaAnexoII(), filas.anexoII, leidas.anexoII);
}

TEST_F(AlmacenEntero, VacioYBlancoVuelvenDistintos) {
    for (const auto* texto : {u"", u" ", u"  x "}) {
        auto filas = declaracion();
        filas.apartado2[22] = q(texto);
        filas.apartado3[7] = q(texto);
        filas.apartado7[48] = q(texto);
        filas.anexoII[0] = q(texto);
        qint32 csde = servidor.GuardarDeclaracion(filas);
        SvrDPadral::FilasDeclaracion leidas;
        servidor.CargarDeclaracion(csde, leidas);
        EXPECT_EQ(leidas.apartado2[22].toString(), q(texto));
        EXPECT_EQ(leidas.apartado3[7].toString(), q(texto));
        EXPECT_EQ(leidas.apartado7[48].toString(), q(texto));
        EXPECT_EQ(leidas.anexoII[0].toString(), q(texto));
    }
}

TEST_F(AlmacenEntero, ElPorcentajeVuelveIgualEnPrecisionSimple) {
    qint32 csde = servidor.GuardarDeclaracion(declaracion());
    for (const float porcentaje : {33.33F, 0.01F, 100.0F, 66.67F}) {
        Fila fila = filaDistinta(TablaParticipe());
        fila[1] = csde;
        fila[15] = porcentaje;
        Tabla tabla;
        tabla.Anadir(fila);
        const qint32 cspa = servidor.AñadirParticipe(tabla);
        SvrDPadral::FilasDeclaracion leidas;
        servidor.CargarDeclaracion(csde, leidas);
        DatosParticipe leido;
        CargarDeFila<DatosParticipe>(leido, TablaParticipe(), leidas.participes.FilaEntera(0));
        EXPECT_EQ(leido.PorcenPart, porcentaje);
        servidor.EliminarParticipe(cspa);
    }
}

}  // namespace
}  // namespace padral::pruebas
