// What section 3 shows of a record when it opens, and what it does to it.

#include "location/section3_fixture.h"
#include "platform/failure.h"

namespace padral::pruebas {
namespace {

TEST_F(PantallaApartado3, VaciaNoEligeNada) {
    r.Modificaciones = true;
    abrir();
    EXPECT_FALSE(r.Modificaciones);
    for (const auto* opcion : {u"optResidente(0)", u"optResidente(1)"})
        EXPECT_FALSE(marcada(opcion));
    for (const auto* caja : pantalla->findChildren<QCheckBox*>())
        EXPECT_FALSE(caja->isChecked()) << caja->objectName().toStdString();
    for (const auto* nombre :
         {u"numPorcenIVA", u"txtDescripcionActividad", u"txtSinEpigrafe", u"numFormaJuridica",
          u"txtAnagrama", u"txtDirCorreo", u"numFax", u"numMovil", u"numFijo"})
        EXPECT_EQ(texto(nombre), QString()) << s(nombre);
    for (const auto* combo : {u"cmbEpigrafe", u"cmbDescFormaJuridica"})
        EXPECT_EQ(c<QComboBox>(combo)->currentIndex(), -1) << s(combo);
    EXPECT_TRUE(habilitado(u"cmbEpigrafe"));
    EXPECT_TRUE(bloqueado(q(u"txtSinEpigrafe")));
    EXPECT_TRUE(visible(u"cmbDescFormaJuridica"));
    EXPECT_FALSE(visible(u"txtOtros"));
}

TEST_F(PantallaApartado3, ElFocoInicialNoRespondeALaResidencia) {
    abrir();
    EXPECT_EQ(foco(), q(u"numPorcenIVA"));
    EXPECT_TRUE(r.ResidenteKelmaria.vacio());
}

TEST_F(PantallaApartado3, LosDatosDelRegistro) {
    valida();
    r.ResidenteKelmaria = q(u"N");
    r.PorcenDeduccion = 75;
    r.DatosApartado3::FechaInicio = 20150310;
    r.CodigoFormaJuridica = 6;
    r.DescripcionFormaJuridica = q(u"SOCIEDAD LIMITADA - B");
    r.Anagrama = q(u"LIBROS");
    r.FechaCierre = 630;
    r.SocPat = r.ActVenMov = q(u"X");
    r.IdiomaPref = q(u"C");
    r.MedioPref = q(u"E");
    r.Revocacion = q(u"S");
    sinCambios([&] { abrir(); });
    EXPECT_TRUE(marcada(u"optResidente(1)"));
    EXPECT_EQ(texto(u"numPorcenIVA"), q(u"75"));
    EXPECT_EQ(fecha(u"mskFechaInicio"), q(u"10/03/2015"));
    EXPECT_EQ(texto(u"txtDescripcionActividad"), q(u"1.2222"));
    EXPECT_EQ(elegido(u"cmbEpigrafe"), q(u"LIBRERIA"));
    EXPECT_EQ(texto(u"numFormaJuridica"), q(u"6"));
    EXPECT_EQ(elegido(u"cmbDescFormaJuridica"), q(u"SOCIEDAD LIMITADA - B"));
    EXPECT_EQ(texto(u"txtAnagrama"), q(u"LIBROS"));
    EXPECT_EQ(fecha(u"mskFechaCierre"), q(u"30/06"));
    for (const auto* nombre :
         {u"chkSocPat", u"chkActVenMov", u"chkCastellano", u"chkElectronico", u"chkRevocacion"})
        EXPECT_TRUE(marcada(nombre)) << s(nombre);
    for (const auto* nombre :
         {u"optResidente(0)", u"chkEuskera", u"chkPostal", u"chkConsentimiento"})
        EXPECT_FALSE(marcada(nombre)) << s(nombre);
    EXPECT_EQ(g.FECHAVIGOR, 0) << "showing a date sets none";
}

TEST_F(PantallaApartado3, EnEuskera) {
    enEuskera();
    r.ActivEcon = q(u"11111");
    r.ListaEpigrafe = q(u"BUZTINGINTZA");
    r.CodigoFormaJuridica = 1;
    r.DescripcionFormaJuridica = q(u"SOZIETATE ANONIMOA - A");
    r.DatosApartado3::FechaInicio = 20150310;
    r.FechaCierre = 1231;
    r.IdiomaPref = q(u"E");
    abrir();
    EXPECT_EQ(fecha(u"mskFechaInicio"), q(u"2015/03/10"));
    EXPECT_EQ(fecha(u"mskFechaCierre"), q(u"31/12"));
    EXPECT_EQ(elegido(u"cmbEpigrafe"), q(u"BUZTINGINTZA"));
    EXPECT_EQ(texto(u"numFormaJuridica"), q(u"1"));
    EXPECT_TRUE(marcada(u"chkEuskera"));
    EXPECT_EQ(filas(u"cmbEpigrafe"),
              (QStringList{q(u"ABOKATUAK"), q(u"BUZTINGINTZA"), q(u"LIBURU DENDA"),
                           q(u"OSKI DENDA"), q(u"JARDUERARIK GABE")}));
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"),
              (QStringList{q(u"BESTELAKOAK"), q(u"SOZIETATE ANONIMOA - A"),
                           q(u"SOZIETATE MUGATUA - B"), q(u"ESTABLEZIMENDUA - W")}));
}

TEST_F(PantallaApartado3, LaFilaSinEpigrafeEsLaUltima) {
    abrir();
    EXPECT_EQ(filas(u"cmbEpigrafe"), (QStringList{q(u"ABOGADOS"), q(u"ALFARERIA"), q(u"LIBRERIA"),
                                                  q(u"ZAPATERIA"), q(u"SIN ACTIVIDAD")}));
}

TEST_F(PantallaApartado3, LaUltimaFormaVaLaPrimeraYLaLibreLaUltima) {
    const QStringList fijas = {q(u"OTROS"), q(u"SOCIEDAD ANONIMA - A"), q(u"SOCIEDAD LIMITADA - B"),
                               q(u"ESTABLECIMIENTO - W")};
    abrir();
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"), fijas);
    r.Anagrama = q(u"ANAGRAMA");
    otraForma(u"COFRADIA");
    abrir();
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"), fijas + QStringList{q(u"COFRADIA")});
    otraForma(u"");
    abrir();
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"), fijas);
    r.CodigoFormaJuridica = 1;
    r.DescripcionFormaJuridica = q(u"SOCIEDAD ANONIMA - A");
    abrir();
    EXPECT_EQ(filas(u"cmbDescFormaJuridica"), fijas);
}

TEST_F(PantallaApartado3, SinEpigrafeAbreLaDescripcionLibre) {
    sinEpigrafe(u"AFINADOR");
    abrir();
    EXPECT_EQ(texto(u"txtDescripcionActividad"), q(u"9999999"));
    EXPECT_EQ(texto(u"txtSinEpigrafe"), q(u"AFINADOR"));
    EXPECT_FALSE(bloqueado(q(u"txtSinEpigrafe")));
    EXPECT_FALSE(habilitado(u"cmbEpigrafe"));
    EXPECT_EQ(elegido(u"cmbEpigrafe"), q(u"SIN ACTIVIDAD"));
}

TEST_F(PantallaApartado3, LaForma90MuestraSuDescripcion) {
    otraForma(u"COFRADIA");
    abrir();
    EXPECT_TRUE(visible(u"txtOtros"));
    EXPECT_FALSE(visible(u"cmbDescFormaJuridica"));
    EXPECT_EQ(texto(u"txtOtros"), q(u"COFRADIA"));
    otraForma(u"OTROS");
    abrir();
    EXPECT_EQ(texto(u"numFormaJuridica"), q(u"90"));
    otraForma(u"L'AMIC");
    abrir();
    EXPECT_EQ(texto(u"txtOtros"), q(u"L'AMIC"));
}

TEST_F(PantallaApartado3, LaEdicionAntiguaConservaLaReventa) {
    valida();
    r.ActVenMov = q(u"X");
    sinCambios([&] { abrir(Edicion::Hasta2014); });
}

TEST_F(PantallaApartado3, UnCatalogoLargoSaleEntero) {
    store::CreateCatalogueFile(estado.RutaBDLectura, [](SQLite::Database& db) {
        db.exec(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
            " INSERT INTO TEpigrafes_2000 SELECT '1.' || (10000 + i), 'EPIGRAFE ' || (10000 + i),"
            " 'EPIGRAFEA ' || (10000 + i) FROM n");
        db.exec(
            "INSERT INTO TEpigrafes_2000 VALUES"
            " ('9999999', 'SIN ACTIVIDAD', 'JARDUERARIK GABE')");
    });
    abrir();
    EXPECT_EQ(c<QComboBox>(u"cmbEpigrafe")->count(), 3001);
    rellenar(u"txtDescripcionActividad", u"1.13000");
    EXPECT_EQ(r.ListaEpigrafe, q(u"EPIGRAFE 13000"));
}

// The section shows none of these lists, but it reads them.
TEST_F(PantallaApartado3, UnCatalogoSinLasListasDeDomiciliosFallaAlCargar) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        for (const auto* tabla : {"TSiglas", "TProvincias", "TMunicipios"}) {
            SCOPED_TRACE(tabla);
            store::CreateCatalogueFile(estado.RutaBDLectura, [tabla](SQLite::Database& db) {
                db.exec(std::string("DROP TABLE ") + tabla);
            });
            FrmApartado3 sola(contexto(), d, Edicion::Desde2015);
            try {
                sola.Cargar();
                ADD_FAILURE() << "no failure";
            } catch (const Fallo& fallo) {
                EXPECT_TRUE(fallo.Castellano().contains(estado.RutaBDLectura));
                EXPECT_TRUE(fallo.Euskera().contains(estado.RutaBDLectura));
            }
        }
    }
}

struct Bandera {
    QString DatosGeneralesStore::*marca;
    bool sigue;
};
TEST_F(PantallaApartado3, SiguienteSoloSiHayMas) {
    using D = DatosGeneralesStore;
    const Bandera banderas[] = {{&D::Apartado2, false}, {&D::Apartado3, false},
                                {&D::Apartado4, true},  {&D::Apartado5, true},
                                {&D::Apartado6, true},  {&D::Apartado7, true},
                                {&D::AnexoI, true},     {&D::AnexoII, true}};
    for (const auto& [marca, sigue] : banderas) {
        g.*marca = q(u"X");
        abrir();
        EXPECT_EQ(habilitado(u"cmdSiguiente"), sigue);
        EXPECT_EQ(habilitado(u"PicSiguiente"), sigue);
        g.*marca = q(u" ");
    }
    abrir();
    EXPECT_FALSE(habilitado(u"cmdSiguiente"));
}

}  // namespace
}  // namespace padral::pruebas
