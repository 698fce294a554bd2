// The roads of a participant through the screens to the store and back.

#include <QAbstractItemView>
#include <algorithm>

#include "store/declarations_server.h"
#include "window_fixture.h"

namespace padral::pruebas {

namespace {

struct Parte {
    const char16_t *dni, *nombre, *porcentaje;
};
constexpr Parte Ane{u"12345678Z", u"ANE", u"60"}, Jon{u"X1234567L", u"JON", u"40"};

class CaminosDeParticipe : public ConPrograma {
protected:
    void SetUp() override {
        ConPrograma::SetUp();
        pulsar({u"chkDeclaracionModificacion"}, u"Nueva");
        escribir({{u"txtDNI", u"E12345674"},
                  {u"txtNombre", u"Aldabe anaiak"},
                  {u"mskFechaDeclaracion", u"31012026"},
                  {u"mskFechaModificacion", u"15012026"},
                  {u"txtDNIRepresentante", u"12345678Z"},
                  {u"txtNombreRepresentante", u"Aldabe Ruiz, Jon"},
                  {u"txtFirmaEnCalidadDe", u"Partaidea"}});
        guia().ElegirPestana(QStringLiteral("Pestaña"), 1);
        guia().ElegirEnCombo(QStringLiteral("cmbMotivoCambio"), QStringLiteral("20"));
        escribir({{u"txtNombreAnterior", u"Aldabe eta semeak"}});
        pulsar({u"chkApartado8", u"cmdAnexo"});
        anotar(Ane);
        pulsar({u"cmdOtroParticipe"});
        anotar(Jon);
        pulsar({u"cmdVolver"});
        guardar();
    }

    static QString q(const char16_t* texto) { return QString::fromUtf16(texto); }
    void pulsar(std::initializer_list<const char16_t*> controles, const char16_t* orden = nullptr) {
        if (orden) guia().Ordenar(q(orden));
        for (const auto* control : controles) guia().Pulsar(q(control));
    }
    void escribir(std::initializer_list<std::pair<const char16_t*, const char16_t*>> campos) {
        for (const auto& [campo, texto] : campos) guia().Escribir(q(campo), q(texto));
    }
    /// Fills the screen of a new participant and accepts it.
    void anotar(const Parte& parte) {
        escribir({{u"txtDNI", parte.dni},
                  {u"txtNombre", parte.nombre},
                  {u"txtSiglas", u"CL"},
                  {u"txtDomicilio", u"Mayor"},
                  {u"txtCodProvincia", u"20"},
                  {u"txtCodigoPostal", u"20500"},
                  {u"txtCodMunicipio", u"1"},
                  {u"txtPorcentaje", parte.porcentaje}});
        pulsar({u"cmdAceptar"});
    }
    /// From the list of participants to the store.
    void guardar() { pulsar({u"cmdInicio", u"cmdAceptar"}); }
    /// Opens the stored declaration and its list of participants.
    void abrir() { pulsar({u"cmdVerDeclaracion", u"cmdAnexo"}, u"Abrir"); }
    void elegir(const Parte& parte) {
        const auto* tabla = pantalla("flxParticipes");
        ASSERT_NE(tabla, nullptr);
        const auto* modelo = qobject_cast<const QAbstractItemView*>(tabla)->model();
        for (int fila = 0; fila < modelo->rowCount(); ++fila)
            if (modelo->index(fila, 1).data().toString() == q(parte.dni))
                return guia().PulsarCelda(QStringLiteral("flxParticipes"), fila, 1);
        FAIL() << q(parte.dni).toStdString();
    }
    void eliminar(const Parte& parte) {
        elegir(parte);
        avisos.Espera({texto(694), texto(592), Icono::Exclamacion, Botones::SiNo}, Respuesta::Si);
        pulsar({u"CmdEliminar"});
    }
    /// Keys of the declarations, from the store.
    QList<qint32> declaraciones() {
        SvrDPadral::cDeclaracionesSvr servidor;
        servidor.mdbname = estado().RutaBDModificacion;
        SvrDPadral::ListaDeclaraciones filas;
        servidor.DameDeclaraciones({}, filas, QStringLiteral("1"), QStringLiteral("ASC"));
        QList<qint32> claves;
        for (int i = 0; i < filas.Filas(); ++i) claves << filas.csde(i);
        std::sort(claves.begin(), claves.end());
        return claves;
    }
    /// Participants of a stored declaration, "DNI NAME SHARE"; their keys go to `claves`.
    QStringList guardados(qint32 csde, QList<qint32>* claves = nullptr) {
        SvrDPadral::cDeclaracionesSvr servidor;
        servidor.mdbname = estado().RutaBDModificacion;
        SvrDPadral::FilasDeclaracion filas;
        servidor.CargarDeclaracion(csde, filas);
        QStringList todos;
        for (int i = 0; i < filas.numParti; ++i) {
            const Fila fila = filas.participes.FilaEntera(i);
            EXPECT_EQ(fila[1].toInt(), csde);
            if (claves) *claves << fila[0].toInt();
            todos << fila[2].toString().trimmed() + u' ' + fila[3].toString().trimmed() + u' ' +
                         QString::number(fila[15].toDouble());
        }
        todos.sort();
        return todos;
    }
    qint32 unica() {
        const auto claves = declaraciones();
        EXPECT_EQ(claves.size(), 1);
        return claves.value(0);
    }
};

TEST_F(CaminosDeParticipe, LosNuevosSeGuardan) {
    EXPECT_EQ(guardados(unica()), (QStringList{QStringLiteral("12345678Z ANE 60"),
                                               QStringLiteral("X1234567L JON 40")}));
}

TEST_F(CaminosDeParticipe, ElCambiadoConservaSuClave) {
    QList<qint32> antes, despues;
    guardados(unica(), &antes);
    abrir();
    elegir(Ane);
    pulsar({u"CmdVerParticipe"});
    escribir({{u"txtNombre", u"Ane Miren"}});
    pulsar({u"cmdAceptar", u"cmdVolver"});
    guardar();
    EXPECT_EQ(guardados(unica(), &despues), (QStringList{QStringLiteral("12345678Z ANE MIREN 60"),
                                                         QStringLiteral("X1234567L JON 40")}));
    EXPECT_EQ(despues, antes);
}

TEST_F(CaminosDeParticipe, ElBorradoDejaSitioAOtro) {
    abrir();
    eliminar(Jon);
    pulsar({u"CmdNuevo"});
    anotar({u"E12345674", u"LASA", u"40"});
    pulsar({u"cmdVolver"});
    guardar();
    EXPECT_EQ(guardados(unica()), (QStringList{QStringLiteral("12345678Z ANE 60"),
                                               QStringLiteral("E12345674 LASA 40")}));
}

TEST_F(CaminosDeParticipe, ElBorradoPuedeVolverAEntrar) {
    abrir();
    eliminar(Jon);
    pulsar({u"CmdNuevo"});
    anotar({Jon.dni, u"JON BERRI", u"40"});
    pulsar({u"cmdVolver"});
    guardar();
    EXPECT_EQ(guardados(unica()), (QStringList{QStringLiteral("12345678Z ANE 60"),
                                               QStringLiteral("X1234567L JON BERRI 40")}));
    abrir();
    EXPECT_EQ(programa_->declaracion().participantes.colParticipes.size(), 2U);
    pulsar({u"cmdInicio", u"cmdCancelar"});
}

TEST_F(CaminosDeParticipe, LaCopiaTieneLosSuyosYElOriginalLosConserva) {
    QList<qint32> originales, copiados;
    const qint32 original = unica();
    guardados(original, &originales);
    pulsar({u"CmdCopiarDeclaracion", u"cmdAnexo"}, u"Abrir");
    elegir(Jon);
    pulsar({u"CmdVerParticipe"});
    escribir({{u"txtNombre", u"Jon Kopia"}});
    pulsar({u"cmdAceptar", u"cmdVolver"});
    guardar();
    const auto claves = declaraciones();
    ASSERT_EQ(claves.size(), 2);
    const qint32 copia = claves[0] == original ? claves[1] : claves[0];
    EXPECT_EQ(guardados(copia, &copiados), (QStringList{QStringLiteral("12345678Z ANE 60"),
                                                        QStringLiteral("X1234567L JON KOPIA 40")}));
    QList<qint32> siguen;
    EXPECT_EQ(guardados(original, &siguen), (QStringList{QStringLiteral("12345678Z ANE 60"),
                                                         QStringLiteral("X1234567L JON 40")}));
    EXPECT_EQ(siguen, originales);
    for (const qint32 clave : copiados) EXPECT_FALSE(originales.contains(clave));
}

TEST_F(CaminosDeParticipe, ElUltimoQueSeBorraQuitaElAnexo) {
    abrir();
    eliminar(Jon);
    eliminar(Ane);
    ASSERT_NE(pantalla("FrmDatGen"), nullptr) << "back from the list";
    EXPECT_EQ(programa_->declaracion().general.AnexoI, QString());
    pulsar({u"cmdAceptar"});
    EXPECT_EQ(guardados(unica()), QStringList());
}

TEST_F(CaminosDeParticipe, SinGuardarNadaCambia) {
    abrir();
    eliminar(Jon);
    pulsar({u"cmdInicio", u"cmdCancelar"});
    EXPECT_EQ(guardados(unica()).size(), 2);
}

}  // namespace

}  // namespace padral::pruebas
