// A participant, the collection of the open declaration, the record of the list.

#include "participants/participants_list.h"
#include "sections/record_checks.h"
#include "sections/small_catalogue.h"
#include "store/declarations_server.h"

namespace padral::pruebas {
namespace {

struct ConParticipes : ConCatalogo {
    EstadoDeclaracion estado;
    cDatosGenerales generales{estado};
    Participantes participantes;
    cParLista lista{participantes, estado, generales, catalogo, rutaBDModificacion};

    std::shared_ptr<cParticipes> nuevo(const char16_t* dni = u"", const char16_t* modo = u"C") {
        auto p = std::make_shared<cParticipes>(participantes, rutaBDModificacion);
        p->DNI = q(dni);
        p->Modo = q(modo);
        return p;
    }
    static Fila fila(int cspa, const char16_t* dni, int postal, int municipio,
                     const char16_t* nombreMunicipio) {
        return {cspa,        12,        q(dni),  q(u"Nombre"), q(u"CL"),
                q(u"Mayor"), 7,         q(u"B"), q(u"1"),      q(u"2"),
                q(u"IZ"),    943000000, postal,  municipio,    q(nombreMunicipio),
                33.25F,      q(u"O"),   q(u"R"), q(u"A"),      q(u" ")};
    }
    void cargar(const std::vector<Fila>& filas) {
        Tabla tabla;
        for (const auto& f : filas) tabla.Anadir(f);
        generales.NumParti = static_cast<qint16>(filas.size());
        lista.CargarDatos(tabla);
    }
};

using Participe = ConParticipes;
using ListaParticipes = ConParticipes;

TEST_F(Participe, InicializarVaciaTodo) {
    auto p = nuevo(u"12345678Z", u"A");
    p->CargarDatos(fila(5, u"12345678Z", 20001, 69, u""), catalogo);
    p->Lleno = q(u"True");
    p->MODIFPARTICIPES = true;
    p->InicializarDatos();
    EXPECT_TRUE(static_cast<const DatosParticipe&>(*p) == DatosParticipe{});
    EXPECT_EQ(p->DNI.texto(), q(u"         "));
    EXPECT_EQ(p->Modo.texto(), q(u" "));
    EXPECT_EQ(p->Lleno, q(u"False"));
    EXPECT_FALSE(p->MODIFPARTICIPES);
}

TEST_F(Participe, LosTextosFijosSeRellenanYSeCortan) {
    auto p = nuevo(u"12345678ZZ");
    EXPECT_EQ(p->DNI.texto(), q(u"12345678Z"));
    p->Mano = q(u"IZDA");
    EXPECT_EQ(p->Mano.texto(), q(u"IZD"));
    p->NOMBRE = q(u"Ana");
    EXPECT_EQ(p->NOMBRE.texto(), q(u"Ana").leftJustified(30));
}

TEST_F(Participe, LaProvinciaSePoneDesdeUnTexto) {
    const struct {
        const char16_t* texto;
        qint16 codigo;
    } casos[] = {{u"20", 20}, {u"01", 1}, {u" 8", 8}, {u"", 0}, {u"x", 0}};
    auto p = nuevo();
    for (const auto& caso : casos) {
        p->CodigoProvincia(caso.texto);
        EXPECT_EQ(p->CodigoProvincia(), caso.codigo) << s(caso.texto);
    }
}

TEST_F(Participe, LaCopiaNoLlevaModoLlenoNiCambios) {
    auto p = nuevo(u"12345678Z", u"A");
    p->CargarDatos(fila(5, u"12345678Z", 20001, 69, u""), catalogo);
    const DatosParticipe cargado = *p;
    p->RellenarTablaAuxiliar();
    p->InicializarDatos();
    p->Modo = q(u"E");
    p->Lleno = q(u"True");
    p->MODIFPARTICIPES = true;
    p->ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(static_cast<const DatosParticipe&>(*p) == cargado);
    EXPECT_EQ(p->Modo, q(u"E"));
    EXPECT_EQ(p->Lleno, q(u"True"));
    EXPECT_TRUE(p->MODIFPARTICIPES);
}

TEST_F(Participe, DeclaracionNuevaRenuevaTambienLaCopia) {
    auto p = nuevo(u"12345678Z", u"A");
    p->RellenarTablaAuxiliar();
    p->ResetForNewDeclaration();
    EXPECT_TRUE(static_cast<const DatosParticipe&>(*p) == DatosParticipe{});
    p->ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(p->DNI.vacio());
}

TEST_F(Participe, ElMunicipioNoSeGuardaCuandoLoDiceSuCodigo) {
    const struct {
        qint32 postal;
        const char16_t* guardado;
    } casos[] = {{20001, u""}, {28001, u"Poblado"}, {0, u"Poblado"}, {2001, u"Poblado"}};
    auto p = nuevo();
    p->NombMun = q(u"Poblado");
    for (const auto& caso : casos) {
        p->CodPostal = caso.postal;
        EXPECT_EQ(p->ObtenerDatos()[14].toString(), q(caso.guardado)) << caso.postal;
        EXPECT_EQ(p->NombMun, q(u"Poblado"));
    }
}

TEST_F(Participe, ExisteDNI) {
    const struct {
        const char16_t* buscado;
        bool existe;
        int cual;
    } casos[] = {
        {u"12345678Z", true, 0},   {u"X1234567L", true, 1},  // the first of two
        {u"A12345674", false, -1},                           // deleted in this run
        {u"N1234567D", true, 4},                             // deleted once and entered again
        {u"12345678z", false, -1},                           // the caller gives capitals
        {u"", false, -1},
    };
    for (const auto& caso : casos) {
        participantes.colParticipes = {nuevo(u"12345678z", u"A"), nuevo(u"X1234567L", u"A"),
                                       nuevo(u"A12345674", u"E"), nuevo(u"N1234567D", u"E"),
                                       nuevo(u"N1234567D", u"A"), nuevo(u"X1234567L", u"A")};
        const auto actual = participantes.ParticipeActual = nuevo();
        bool existe = false;
        actual->ExisteDNI(q(caso.buscado), existe);
        EXPECT_EQ(existe, caso.existe) << s(caso.buscado);
        const auto& esperado =
            caso.existe ? participantes.colParticipes[static_cast<std::size_t>(caso.cual)] : actual;
        EXPECT_EQ(participantes.ParticipeActual, esperado);
        for (std::size_t i = 0; i < 6; ++i) {
            const bool hallado = caso.existe && static_cast<int>(i) == caso.cual;
            const QString antes = i == 2 || i == 3 ? q(u"E") : q(u"A");
            EXPECT_EQ(participantes.colParticipes[i]->Modo, hallado ? q(u"C") : antes) << i;
        }
    }
}

TEST_F(Participe, SeGuardaCambiaYBorraEnElAlmacen) {
    store::CreateDeclarationsFile(rutaBDModificacion);
    SvrDPadral::cDeclaracionesSvr servidor;
    servidor.mdbname = rutaBDModificacion;
    SvrDPadral::FilasDeclaracion filas;
    EstadoDeclaracion nueva;
    filas.general = cDatosGenerales(nueva).ObtenerDatos();
    qint32 csde = servidor.GuardarDeclaracion(filas);
    const auto leer = [&] {
        SvrDPadral::FilasDeclaracion leidas;
        servidor.CargarDeclaracion(csde, leidas);
        return leidas;
    };

    auto p = nuevo();
    p->CargarDatos(fila(777, u"12345678Z", 20001, 69, u""), catalogo);
    p->csde = csde;
    p->AñadirParticipe();
    EXPECT_NE(p->cspa, 0);
    EXPECT_NE(p->cspa, 777) << "the store gives the key";
    auto leidas = leer();
    ASSERT_EQ(leidas.numParti, 1);
    EXPECT_EQ(leidas.participes.FilaEntera(0), p->ObtenerDatos());
    EXPECT_EQ(leidas.participes(14, 0).toString(), q(u""));

    p->NOMBRE = q(u"Otro");
    p->ModificarParticipe();
    leidas = leer();
    ASSERT_EQ(leidas.numParti, 1);
    EXPECT_EQ(leidas.participes.FilaEntera(0), p->ObtenerDatos());

    p->EliminarParticipe();
    EXPECT_EQ(leer().numParti, 0);
}

TEST_F(ListaParticipes, CargaLaColeccion) {
    participantes.colParticipes = {nuevo()};
    participantes.ParticipeActual = nuevo();
    cargar({fila(5, u"12345678Z", 20001, 69, u"otro"), fila(6, u"X1234567L", 28001, 69, u"Poblado"),
            fila(7, u"A12345674", 0, 0, u"Poblado")});
    ASSERT_EQ(participantes.colParticipes.size(), 3U);
    EXPECT_EQ(estado.NumParti, 3);
    EXPECT_EQ(participantes.ParticipeActual, nullptr);

    const auto& propio = *participantes.colParticipes[0];
    EXPECT_EQ(propio.cspa, 5);
    EXPECT_EQ(propio.csde, 12);
    EXPECT_EQ(propio.DNI, q(u"12345678Z"));
    EXPECT_EQ(propio.DESCRIPCIONVIA, q(u"Calle"));
    EXPECT_EQ(propio.CodigoProvincia(), 20);
    EXPECT_EQ(propio.NombreProvincia, q(u"Kelmaria"));
    EXPECT_EQ(propio.NombMun, q(u"Capital"));
    EXPECT_FLOAT_EQ(propio.PorcenPart, 33.25F);
    EXPECT_EQ(propio.SimplifIVA, q(u"A"));

    const auto& ajeno = *participantes.colParticipes[1];
    EXPECT_EQ(ajeno.CodigoProvincia(), 28);
    EXPECT_EQ(ajeno.NombMun, q(u"Poblado"));
    const auto& sinPostal = *participantes.colParticipes[2];
    EXPECT_EQ(sinPostal.CodigoProvincia(), 0);
    EXPECT_EQ(sinPostal.NombreProvincia, q(u""));
    EXPECT_EQ(sinPostal.NombMun, q(u"Poblado"));
}

TEST_F(ListaParticipes, NombresEnLaLenguaDelMomento) {
    desplazamiento = Euskera;
    cargar({fila(5, u"12345678Z", 20001, 69, u"")});
    EXPECT_EQ(participantes.colParticipes[0]->DESCRIPCIONVIA, q(u"Kalea"));
    EXPECT_EQ(participantes.colParticipes[0]->NombreProvincia, q(u"Kelmarria"));
}

TEST_F(ListaParticipes, ModoDeLosCargados) {
    const struct {
        const char16_t* declaracion;
        const char16_t* participe;
    } casos[] = {{u"A", u"A"}, {u"C", u"C"}, {u"E", u"C"}, {u"", u"C"}};
    for (const auto& caso : casos) {
        estado.Modo = q(caso.declaracion);
        cargar({fila(5, u"12345678Z", 20001, 69, u"")});
        EXPECT_EQ(participantes.colParticipes[0]->Modo, q(caso.participe));
    }
}

TEST_F(ListaParticipes, LaCopiaDeCadaUnoEmpiezaIgual) {
    cargar({fila(5, u"12345678Z", 20001, 69, u"")});
    auto& p = *participantes.colParticipes[0];
    const DatosParticipe cargado = p;
    p.InicializarDatos();
    p.ObtenerDatosTablaAuxiliar();
    EXPECT_TRUE(static_cast<const DatosParticipe&>(p) == cargado);
}

TEST_F(ListaParticipes, SinParticipes) {
    participantes.colParticipes = {nuevo()};
    estado.NumParti = 4;
    cargar({});
    EXPECT_TRUE(participantes.colParticipes.empty());
    EXPECT_EQ(estado.NumParti, 0);
}

TEST_F(ListaParticipes, LimpiarDejaSinColeccion) {
    participantes.colParticipes = {nuevo(), nuevo()};
    lista.LimpiarTablaParticipes();
    EXPECT_TRUE(participantes.colParticipes.empty());
}

TEST_F(ListaParticipes, ValoresIniciales) {
    EXPECT_FALSE(lista.Inicializado);
    EXPECT_EQ(lista.cspa, 0);
    EXPECT_EQ(lista.DNI.texto().size(), 9);
    EXPECT_EQ(lista.NOMBRE.texto().size(), 40);
    EXPECT_EQ(lista.DOMICILIO.texto().size(), 30);
    EXPECT_EQ(lista.MUNICIPIO.texto().size(), 25);
    EXPECT_EQ(lista.PORCENTAJE, 0);
    EXPECT_EQ(lista.MODOPART, q(u"C"));
    EXPECT_EQ(lista.ORDEN, 0);
    EXPECT_EQ(lista.BUSQUEDA, q(u"N"));
    EXPECT_EQ(lista.SELECCIONACTUAL, 0);
    EXPECT_EQ(lista.NUMPARTLIST, 0);
    EXPECT_EQ(lista.TIPOORDEN, q(u"ASC"));
    EXPECT_FALSE(lista.MODIFLISTAPART);
}

void desordenar(cParLista& lista) {
    lista.cspa = 5;
    lista.DNI = q(u"12345678Z");
    lista.MODOPART = q(u"A");
    lista.BUSQUEDA = q(u"B");
    lista.ORDEN = 2;
    lista.TIPOORDEN = q(u"DESC");
    lista.MODIFLISTAPART = true;
    lista.TS_AÑADIR(1, q(u"1"));
}

TEST_F(ListaParticipes, InicializarVuelveAlPrincipio) {
    desordenar(lista);
    lista.Inicializado = true;
    lista.Inicializar();
    EXPECT_TRUE(static_cast<const DatosParLista&>(lista) == DatosParLista{});
    EXPECT_EQ(lista.TS_COUNT(), 0);
}

TEST_F(ListaParticipes, InicializarListaSoloLaPrimeraVez) {
    desordenar(lista);
    lista.InicializarListaParticipes();
    EXPECT_TRUE(lista.Inicializado);
    EXPECT_EQ(lista.TIPOORDEN, q(u"ASC"));
    EXPECT_EQ(lista.TS_COUNT(), 0);
    desordenar(lista);
    lista.InicializarListaParticipes();
    EXPECT_EQ(lista.TIPOORDEN, q(u"DESC"));
    EXPECT_EQ(lista.TS_COUNT(), 1);
}

TEST_F(ListaParticipes, VolcarNoHaceNada) {
    desordenar(lista);
    participantes.colParticipes = {nuevo()};
    lista.VolcarColeccionEnTablaAuxiliar();
    EXPECT_EQ(lista.TS_COUNT(), 1);
    EXPECT_EQ(participantes.colParticipes.size(), 1U);
}

}  // namespace
}  // namespace padral::pruebas
