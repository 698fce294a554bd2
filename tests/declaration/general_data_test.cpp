// The general data record: its 18 values, the flags, the texts worked out at load.

#include "declaration/general_data.h"

#include "declaration/full_declaration.h"

namespace padral::pruebas {
namespace {

class Generales : public ::testing::Test {
protected:
    Fila fila() const {
        return {0,
                QStringLiteral("v1"),
                QStringLiteral("v2"),
                QStringLiteral("v3"),
                20040404,
                20050505,
                20060606,
                QStringLiteral("I"),
                QStringLiteral("E"),
                QStringLiteral("v9"),
                QStringLiteral("v10"),
                20,
                QStringLiteral("X X X X "),
                20131313,
                QStringLiteral("v14"),
                QStringLiteral("v15"),
                QStringLiteral("v16"),
                QStringLiteral("v17")};
    }
    void cargarCon(qsizetype posicion, const QVariant& valor) {
        Fila f = fila();
        f[posicion] = valor;
        g.CargarDatos(f, 0);
    }
    EstadoDeclaracion estado;
    cDatosGenerales g{estado};
};

TEST_F(Generales, CadaPosicionVaASuPropiedad) {
    g.CargarDatos(fila(), 7);
    EXPECT_EQ(g.DNI, QStringLiteral("v1"));
    EXPECT_EQ(g.NOMBRE, QStringLiteral("v2"));
    EXPECT_EQ(g.NumeroArchivo, QStringLiteral("v3"));
    EXPECT_EQ(g.FECHADECLARACION, 20040404);
    EXPECT_EQ(g.FechaConstitucion, 20050505);
    EXPECT_EQ(g.FechaInscripcion, 20060606);
    EXPECT_EQ(g.Causa1, QStringLiteral("I"));
    EXPECT_EQ(g.Causa2, QStringLiteral("E"));
    EXPECT_EQ(g.DNIAnterior, QStringLiteral("v9"));
    EXPECT_EQ(g.NombreAnterior, QStringLiteral("v10"));
    EXPECT_EQ(g.MotivoCambio, 20);
    EXPECT_EQ(g.FechaModificacion(), 20131313);
    EXPECT_EQ(g.DNIRepresentante, QStringLiteral("v14"));
    EXPECT_EQ(g.NombreRepresentante, QStringLiteral("v15"));
    EXPECT_EQ(g.FirmaEnCalidadDe, QStringLiteral("v16"));
    EXPECT_EQ(g.ElMismo, QString()) << "element 17 is sent but not read";
    EXPECT_EQ(g.NumParti, 7);
}

TEST_F(Generales, LosDieciochoValoresVuelvenASuPosicion) {
    g.CargarDatos(fila(), 0);
    estado.csde = 99;
    Fila esperada = fila();
    esperada[0] = 99;
    esperada[17] = QString();
    const Fila dada = g.ObtenerDatos();
    ASSERT_EQ(dada.size(), 18);
    for (qsizetype i = 0; i < 18; ++i) EXPECT_EQ(dada[i], esperada[i]) << i;
    g.ElMismo = QStringLiteral("X");
    EXPECT_EQ(g.ObtenerDatos()[17].toString(), QStringLiteral("X"));
}

/// The flags in the order of the characters of element 12.
constexpr QString DatosGeneralesStore::*Banderas[] = {
    &DatosGeneralesStore::Apartado2, &DatosGeneralesStore::Apartado3,
    &DatosGeneralesStore::Apartado4, &DatosGeneralesStore::Apartado5,
    &DatosGeneralesStore::Apartado6, &DatosGeneralesStore::Apartado7,
    &DatosGeneralesStore::AnexoI,    &DatosGeneralesStore::AnexoII};

TEST_F(Generales, CadaCaracterEsUnaBandera) {
    for (qsizetype i = 0; i < 8; ++i) {
        QString texto(8, u' ');
        texto[i] = u'X';
        cargarCon(12, texto);
        for (qsizetype j = 0; j < 8; ++j)
            EXPECT_EQ(g.*Banderas[j], j == i ? QStringLiteral("X") : QStringLiteral(" "));
        EXPECT_EQ(g.ObtenerDatos()[12].toString(), texto);
    }
}

TEST_F(Generales, TextoDeBanderasCortoDejaVaciasLasUltimas) {
    cargarCon(12, QStringLiteral("X X"));
    EXPECT_EQ(g.Apartado2, QStringLiteral("X"));
    EXPECT_EQ(g.Apartado3, QStringLiteral(" "));
    EXPECT_EQ(g.Apartado4, QStringLiteral("X"));
    for (qsizetype j = 3; j < 8; ++j) EXPECT_EQ(g.*Banderas[j], QString()) << j;
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QStringLiteral("X X     "));
}

TEST_F(Generales, LasBanderasDanSiempreOchoCaracteres) {
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QStringLiteral("        "));
    g.AnexoII = QStringLiteral("X");
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QStringLiteral("       X"));
    for (const auto bandera : Banderas) g.*bandera = QStringLiteral("X");
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QStringLiteral("XXXXXXXX"));
    g.Apartado6.clear();
    EXPECT_EQ(g.ObtenerDatos()[12].toString(), QStringLiteral("XXXX XXX"));
}

TEST_F(Generales, UnaFilaCortaDaVaciosYCeros) {
    g.CargarDatos(fila(), 1);
    g.CargarDatos({}, 0);
    EXPECT_EQ(g.DNI, QString());
    EXPECT_EQ(g.FECHADECLARACION, 0);
    EXPECT_EQ(g.MotivoCambio, 0);
    EXPECT_EQ(g.Apartado2, QString());
    EXPECT_EQ(g.NumParti, 0);
}

struct Deducido {
    qsizetype posicion;
    QVariant valor;
    QString DatosGeneralesStore::*propiedad;
    const char16_t* esperado;
};
class ValorDeducido : public Generales, public ::testing::WithParamInterface<Deducido> {};

TEST_P(ValorDeducido, AlCargar) {
    const auto& [posicion, valor, propiedad, esperado] = GetParam();
    cargarCon(posicion, valor);
    EXPECT_EQ(g.*propiedad, q(esperado));
}

using S = DatosGeneralesStore;
INSTANTIATE_TEST_SUITE_P(
    Filas, ValorDeducido,
    ::testing::Values(Deducido{16, QStringLiteral("EL MISMO"), &S::ElMismo, u"X"},
                      Deducido{16, QStringLiteral("OTRO"), &S::ElMismo, u""},
                      Deducido{16, QString(), &S::ElMismo, u""},
                      Deducido{11, 0, &S::SolicitaModif, u""},
                      Deducido{11, QStringLiteral("0"), &S::SolicitaModif, u""},
                      Deducido{11, QString(), &S::SolicitaModif, u""},
                      Deducido{11, 10, &S::SolicitaModif, u"X"},
                      Deducido{11, 31, &S::SolicitaModif, u"X"},
                      Deducido{11, QStringLiteral("005"), &S::SolicitaModif, u""},
                      Deducido{8, QStringLiteral("A"), &S::SolicitaNIF, u"X"},
                      Deducido{8, QStringLiteral(" "), &S::SolicitaNIF, u"X"},
                      Deducido{8, QString(), &S::SolicitaNIF, u""}));

TEST_F(Generales, LaFechaDeModificacionPoneLaDeVigor) {
    g.FECHAVIGOR = 20010101;
    g.FechaModificacion(20150102);
    EXPECT_EQ(g.FECHAVIGOR, 20150102);
    g.FechaModificacion(0);
    EXPECT_EQ(g.FECHAVIGOR, 0);
    cargarCon(13, 20131313);
    EXPECT_EQ(g.FECHAVIGOR, 20131313);
}

TEST_F(Generales, InicializarVaciaTodoMenosNumPartiYVigor) {
    rellenarGenerales(g);
    g.SolicitaModif = g.SolicitaNIF = QStringLiteral("X");
    for (const auto bandera : Banderas) g.*bandera = QStringLiteral("X");
    g.NumParti = 3;
    g.FECHAVIGOR = 20150607;
    g.InicializarDatosGenerales();
    const Fila dada = g.ObtenerDatos();
    for (const qsizetype i : {1, 2, 3, 7, 8, 9, 10, 14, 15, 16, 17})
        EXPECT_EQ(dada[i].toString(), QString()) << i;
    for (const qsizetype i : {4, 5, 6, 11, 13}) EXPECT_EQ(dada[i].toInt(), 0) << i;
    EXPECT_EQ(dada[12].toString(), QString(8, u' '));
    EXPECT_EQ(g.SolicitaModif + g.SolicitaNIF, QString());
    EXPECT_EQ(g.NumParti, 3);
    EXPECT_EQ(g.FECHAVIGOR, 20150607);
}

TEST_F(Generales, IniciarVarGenPoneLosContadoresACero) {
    g.NumParti = estado.NumParti = 4;
    estado.SumaPorcen = 99.5;
    g.IniciarVarGen();
    EXPECT_EQ(g.NumParti, 0);
    EXPECT_EQ(estado.NumParti, 0);
    EXPECT_EQ(estado.SumaPorcen, 0.0);
}

}  // namespace
}  // namespace padral::pruebas
