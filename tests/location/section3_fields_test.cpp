// Leaving the percentage, the dates and the plain fields of section 3.

#include <QClipboard>

#include "location/section3_fixture.h"

namespace padral::pruebas {
namespace {

class Campos3 : public PantallaApartado3 {
protected:
    /// Refused: the message, nothing stored, the focus stays.
    void esperaRechazo(const char16_t* campo, const char16_t* valor, const QString& mensaje,
                       const QString& titulo) {
        avisos.Espera(mensaje, titulo);
        sinCambios([&] { rellenar(campo, valor); });
        avisos.Verificar();
        EXPECT_EQ(foco(), q(campo));
    }
    void pegar(const char16_t* campo, const QString& texto) {
        QGuiApplication::clipboard()->setText(texto);
        enfocar(campo);
        c<QLineEdit>(campo)->selectAll();
        tecla(Qt::Key_V, Qt::ControlModifier);
    }
};

TEST_F(Campos3, PorcentajeHastaCien) {
    abrirValida();
    const std::pair<const char16_t*, qint32> casos[] = {
        {u"1", 1}, {u"99", 99}, {u"100", 100}, {u"0", 0}, {u"050", 50}};
    for (const auto& [tecleado, guardado] : casos) {
        r.Modificaciones = false;
        rellenar(u"numPorcenIVA", tecleado);
        EXPECT_EQ(r.PorcenDeduccion, guardado);
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_EQ(texto(u"numPorcenIVA"), guardado ? QString::number(guardado) : QString());
    }
    rellenar(u"numPorcenIVA", u"25");
    rellenar(u"numPorcenIVA", u"");
    EXPECT_EQ(r.PorcenDeduccion, 0);
}

TEST_F(Campos3, PorcentajeDeMasDeCien) {
    r.PorcenDeduccion = 40;
    abrirValida();
    for (const auto* valor : {u"101", u"999"}) {
        esperaRechazo(u"numPorcenIVA", valor,
                      q(u"El porcentaje de deducción de IVA debe ser menor o igual que 100"),
                      q(u"Porcentaje de deducción de IVA no válido"));
        EXPECT_EQ(texto(u"numPorcenIVA"), q(valor));
    }
}

TEST_F(Campos3, UnaOrdenNoSigueConUnCampoRechazado) {
    abrirValida();
    escribir(u"numPorcenIVA", q(u"101"));
    esperaAviso(155, 156);
    pulsar(u"chkFaxAlta");
    avisos.Verificar();
    EXPECT_FALSE(marcada(u"chkFaxAlta"));
    EXPECT_TRUE(r.Fax.vacio());
    esperaAviso(155, 156);
    c<QAbstractButton>(u"chkFaxAlta")->click();
    EXPECT_FALSE(marcada(u"chkFaxAlta"));
    esperaAviso(155, 156);
    c<QAbstractButton>(u"chkSocPat")->click();
    EXPECT_FALSE(marcada(u"chkSocPat"));
    esperaAviso(155, 156);
    c<QAbstractButton>(u"optResidente(1)")->click();
    EXPECT_TRUE(marcada(u"optResidente(0)"));
    esperaAviso(155, 156);
    pulsar(u"cmdCancelar");
    EXPECT_EQ(pantallas.Tomar(), QStringList());
}

TEST_F(Campos3, FechaDeInicioPoneLaDeEfecto) {
    const struct {
        const char16_t *causa1, *tecleada;
        qint32 fecha, efecto;
    } casos[] = {{u"I", u"01012015", 20150101, 20150101}, {u"P", u"31122014", 20141231, 20141231},
                 {u"M", u"01012015", 20150101, 0},        {u"C", u"01011000", 10000101, 10000101},
                 {u"", u"31122099", 20991231, 20991231},  {u"I", u"29022016", 20160229, 20160229}};
    for (const auto& caso : casos) {
        g.Causa1 = q(caso.causa1);
        g.FECHAVIGOR = 19991231;
        r.DatosApartado3::FechaInicio = 0;
        abrirValida();
        rellenar(u"mskFechaInicio", caso.tecleada);
        EXPECT_EQ(r.FechaInicio(), caso.fecha) << s(caso.tecleada);
        EXPECT_EQ(g.FECHAVIGOR, caso.efecto);
        EXPECT_TRUE(r.Modificaciones);
    }
}

TEST_F(Campos3, FechaDeInicioVaciada) {
    g.Causa1 = q(u"I");
    g.FECHAVIGOR = 20150310;
    r.DatosApartado3::FechaInicio = 20150310;
    abrirValida();
    rellenar(u"mskFechaInicio", u"");
    EXPECT_EQ(r.FechaInicio(), 0);
    EXPECT_EQ(g.FECHAVIGOR, 0);
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_EQ(fecha(u"mskFechaInicio"), q(u"__/__/____"));
}

TEST_F(Campos3, FechaDeInicioDeCerosEsNinguna) {
    for (const bool euskera : {false, true}) {
        if (euskera) enEuskera();
        const QString vacia = euskera ? q(u"____/__/__") : q(u"__/__/____");
        g.Causa1 = q(u"I");
        g.FECHAVIGOR = r.DatosApartado3::FechaInicio = 20150310;
        abrirValida();
        rellenar(u"mskFechaInicio", u"00000000");
        EXPECT_EQ(r.FechaInicio(), 0);
        EXPECT_EQ(g.FECHAVIGOR, 0);
        EXPECT_TRUE(r.Modificaciones);
        EXPECT_EQ(fecha(u"mskFechaInicio"), vacia);
        r.Modificaciones = false;
        g.FECHAVIGOR = 20160101;
        sinCambios([&] { rellenar(u"mskFechaInicio", u"00000000"); });
        EXPECT_EQ(g.FECHAVIGOR, 20160101);
        EXPECT_EQ(fecha(u"mskFechaInicio"), vacia);
    }
}

TEST_F(Campos3, ElMismoValorSeMuestraComoEsta) {
    r.Fax = q(u"A");
    r.PorcenDeduccion = 40;
    abrirValida();
    const struct {
        const char16_t *campo, *tecleado, *mostrado;
    } casos[] = {{u"numPorcenIVA", u"040", u"40"},
                 {u"mskFechaInicio", u"00000000", u"__/__/____"},
                 {u"mskFechaCierre", u"0000", u"__/__"},
                 {u"numFax", u"000", u""}};
    for (const auto& caso : casos) {
        sinCambios([&] { rellenar(caso.campo, caso.tecleado); });
        EXPECT_EQ(fecha(caso.campo), q(caso.mostrado)) << s(caso.campo);
    }
}

TEST_F(Campos3, FechaDeCierreDeCerosEsNinguna) {
    r.FechaCierre = 1231;
    abrirValida();
    rellenar(u"mskFechaCierre", u"0000");
    EXPECT_EQ(r.FechaCierre, 0);
    EXPECT_TRUE(r.Modificaciones);
    EXPECT_EQ(fecha(u"mskFechaCierre"), q(u"__/__"));
}

TEST_F(Campos3, FechaDeInicioRechazada) {
    g.FECHAVIGOR = 20140101;
    r.DatosApartado3::FechaInicio = 20140101;
    abrirValida();
    for (const auto* valor : {u"01012100", u"31042015", u"29021900", u"1", u"0101", u"01010999",
                              u"0000", u"0000000", u"00002015"}) {
        esperaRechazo(u"mskFechaInicio", valor,
                      q(u"La fecha de inicio debe ser anterior a 31/12/2099."),
                      q(u"Fecha no válida"));
        EXPECT_EQ(g.FECHAVIGOR, 20140101);
    }
}

TEST_F(Campos3, FechaDeInicioEnEuskera) {
    enEuskera();
    abrirValida();
    rellenar(u"mskFechaInicio", u"20150310");
    EXPECT_EQ(r.FechaInicio(), 20150310);
    esperaRechazo(u"mskFechaInicio", u"21000101",
                  estado.Texto(667) + q(u"2099/12/31") + estado.Texto(668), estado.Texto(151));
}

TEST_F(Campos3, FechaDeCierre) {
    abrirValida();
    const std::pair<const char16_t*, qint32> casos[] = {
        {u"3112", 1231}, {u"0101", 101}, {u"2902", 229}, {u"3004", 430}, {u"0000", 0}};
    for (const auto& [tecleada, guardada] : casos) {
        r.Modificaciones = false;
        rellenar(u"mskFechaCierre", tecleada);
        EXPECT_EQ(r.FechaCierre, guardada);
        EXPECT_TRUE(r.Modificaciones);
    }
    rellenar(u"mskFechaCierre", u"3112");
    rellenar(u"mskFechaCierre", u"");
    EXPECT_EQ(r.FechaCierre, 0);
}

TEST_F(Campos3, FechaDeCierreRechazada) {
    for (const qint32 anterior : {0, 1231}) {
        r.FechaCierre = anterior;
        abrirValida();
        // Half filled ones, too, whether or not there was a date before.
        for (const auto* valor : {u"3002", u"3104", u"3201", u"0113", u"0001", u"3", u"31", u"311"})
            esperaRechazo(u"mskFechaCierre", valor,
                          q(u"La fecha de cierre no es una fecha lógica."), q(u"Fecha no válida"));
    }
}

TEST_F(Campos3, LosCamposLlanosSeGuardanAlSalir) {
    r.Correo = r.Fax = q(u"A");
    r.Movil = r.Fijo = q(u"B");
    const struct {
        const char16_t *campo, *tecleado;
        QVariant guardado;
        QVariant (*leer)(const cApartado3&);
    } casos[] = {{u"txtAnagrama", u"ana", q(u"ANA"),
                  [](const cApartado3& a) { return QVariant(a.Anagrama); }},
                 {u"txtDirCorreo", u"a_b@c.d", q(u"A_B@C.D"),
                  [](const cApartado3& a) { return QVariant(a.DirCorreo); }},
                 {u"numFax", u"943111222", 943111222,
                  [](const cApartado3& a) { return QVariant(a.numFax); }},
                 {u"numMovil", u"600111222", 600111222,
                  [](const cApartado3& a) { return QVariant(a.numMovil); }},
                 {u"numFijo", u"943333444", 943333444,
                  [](const cApartado3& a) { return QVariant(a.numFijo); }}};
    abrirValida();
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.campo));
        r.Modificaciones = false;
        sinCambios([&] {
            enfocar(caso.campo);
            tecla(Qt::Key_Tab);
        });
        rellenar(caso.campo, caso.tecleado);
        EXPECT_EQ(caso.leer(r), caso.guardado);
        EXPECT_TRUE(r.Modificaciones);
        enfocar(caso.campo);
        EXPECT_EQ(c<QLineEdit>(caso.campo)->selectedText(), texto(caso.campo));
        tecla(Qt::Key_Return);
        EXPECT_NE(foco(), q(caso.campo)) << "Enter moves on";
        rellenar(caso.campo, u"");
        EXPECT_EQ(caso.leer(r).toString(),
                  caso.guardado.typeId() == QMetaType::QString ? QString() : q(u"0"));
    }
}

TEST_F(Campos3, LoPegadoSeCortaALoQueCabe) {
    r.Correo = r.Fax = r.Movil = r.Fijo = q(u"A");
    sinEpigrafe(u"AFINADOR");
    otraForma(u"COFRADIA");
    abrirValida();
    r.ActivEcon = q(u"9999999");
    static_cast<FrmApartado3*>(pantalla.get())->PresentarDatos();
    const QString letras(10000, u'a'), cifras(10000, u'7');
    const std::pair<const char16_t*, int> textos[] = {{u"txtDescripcionActividad", 7},
                                                      {u"txtSinEpigrafe", 30},
                                                      {u"txtOtros", 20},
                                                      {u"txtAnagrama", 20},
                                                      {u"txtDirCorreo", 254}};
    for (const auto& [nombre, ancho] : textos) {
        pegar(nombre, letras);
        EXPECT_EQ(texto(nombre), QString(ancho, u'A')) << s(nombre);
    }
    const std::pair<const char16_t*, int> numeros[] = {
        {u"numFax", 9}, {u"numMovil", 9}, {u"numFijo", 9}};
    for (const auto& [nombre, ancho] : numeros) {
        pegar(nombre, letras);
        EXPECT_EQ(texto(nombre), QString()) << s(nombre);
        pegar(nombre, cifras);
        EXPECT_EQ(texto(nombre), QString(ancho, u'7')) << s(nombre);
    }
}

TEST_F(Campos3, LoPegadoEnPorcentajeYFechas) {
    const QString letras(10000, u'a'), cifras(10000, u'1');
    const struct {
        const char16_t *campo, *vacio, *lleno;
    } casos[] = {{u"numPorcenIVA", u"", u"111"},
                 {u"mskFechaInicio", u"__/__/____", u"11/11/1111"},
                 {u"mskFechaCierre", u"__/__", u"11/11"}};
    for (const auto& caso : casos) {
        SCOPED_TRACE(s(caso.campo));
        abrirValida();
        pegar(caso.campo, letras);
        EXPECT_EQ(fecha(caso.campo), q(caso.vacio));
        pegar(caso.campo, cifras);
        EXPECT_EQ(fecha(caso.campo), q(caso.lleno));
        if (q(caso.campo) == u"numPorcenIVA") esperaAviso(155, 156);
        tecla(Qt::Key_Tab);
        avisos.Verificar();
        EXPECT_EQ(fecha(caso.campo), q(caso.lleno));
    }
    EXPECT_EQ(r.FechaInicio(), 11111111);
    EXPECT_EQ(r.FechaCierre, 1111);
}

}  // namespace
}  // namespace padral::pruebas
