#pragma once
// The whole program over one stored declaration with two participants, and their rows in the file.

#include <QAbstractItemView>
#include <QMap>
#include <algorithm>

#include "program/window_fixture.h"
#include "store/database.h"
#include "store/declarations_server.h"

namespace padral::pruebas {

/// What is typed into the screen of a participant.
struct Parte {
    const char16_t *dni, *nombre, *porcentaje;
};
inline constexpr Parte Ane{u"12345678Z", u"ANE", u"60"}, Jon{u"X1234567L", u"JON", u"40"};

class ConCaminos : public ConPrograma {
protected:
    /// Rows of the file: key of the participant, "DNI NAME SHARE".
    using Filas = QMap<qint32, QString>;

    void SetUp() override {
        ConPrograma::SetUp();
        empezar();
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
    /// A new declaration with both participants; their list is open.
    void empezar() {
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
    }
    /// Fills the screen of a new participant.
    void rellenar(const Parte& parte) {
        escribir({{u"txtDNI", parte.dni},
                  {u"txtNombre", parte.nombre},
                  {u"txtSiglas", u"CL"},
                  {u"txtDomicilio", u"Mayor"},
                  {u"txtCodProvincia", u"20"},
                  {u"txtCodigoPostal", u"20500"},
                  {u"txtCodMunicipio", u"1"},
                  {u"txtPorcentaje", parte.porcentaje}});
    }
    void anotar(const Parte& parte) {
        rellenar(parte);
        pulsar({u"cmdAceptar"});
    }
    /// From the list to a new participant, accepted, and back.
    void anadir(const Parte& parte) {
        pulsar({u"CmdNuevo"});
        anotar(parte);
        pulsar({u"cmdVolver"});
    }
    /// From the list of participants to the store.
    void guardar() { pulsar({u"cmdInicio", u"cmdAceptar"}); }
    /// The same with a single participant, which the program finds few.
    void guardarUno() {
        avisos.Espera(texto(754), QString());
        guardar();
        avisos.Verificar();
    }
    /// Opens the stored declaration and its list of participants.
    void abrir() { pulsar({u"cmdVerDeclaracion", u"cmdAnexo"}, u"Abrir"); }
    void copiar() { pulsar({u"CmdCopiarDeclaracion", u"cmdAnexo"}, u"Abrir"); }
    /// Identifiers of the list on show, in its order.
    QStringList lista() {
        const auto* tabla = qobject_cast<const QAbstractItemView*>(pantalla("flxParticipes"));
        QStringList todos;
        for (int fila = 0; tabla && fila < tabla->model()->rowCount(); ++fila)
            todos << tabla->model()->index(fila, 1).data().toString();
        todos.removeAll(QString());
        return todos;
    }
    void elegir(const Parte& parte) {
        const auto fila = static_cast<int>(lista().indexOf(q(parte.dni)));
        ASSERT_GE(fila, 0) << q(parte.dni).toStdString();
        guia().PulsarCelda(QStringLiteral("flxParticipes"), fila, 1);
    }
    /// From the list to a participant, one field of it changed and accepted, and back.
    void cambiar(const Parte& parte, const char16_t* campo, const char16_t* texto) {
        elegir(parte);
        pulsar({u"CmdVerParticipe"});
        escribir({{campo, texto}});
        pulsar({u"cmdAceptar", u"cmdVolver"});
    }
    void eliminar(const Parte& parte) {
        elegir(parte);
        avisos.Espera({texto(694), texto(592), Icono::Exclamacion, Botones::SiNo}, Respuesta::Si);
        pulsar({u"CmdEliminar"});
    }

    SvrDPadral::cDeclaracionesSvr servidor() {
        SvrDPadral::cDeclaracionesSvr svr;
        svr.mdbname = estado().RutaBDModificacion;
        return svr;
    }
    /// Keys of the declarations in the store, the oldest first.
    QList<qint32> declaraciones() {
        SvrDPadral::ListaDeclaraciones filas;
        servidor().DameDeclaraciones({}, filas, QStringLiteral("1"), QStringLiteral("ASC"));
        QList<qint32> claves;
        for (int i = 0; i < filas.Filas(); ++i) claves << filas.csde(i);
        std::sort(claves.begin(), claves.end());
        return claves;
    }
    qint32 unica() {
        const auto claves = declaraciones();
        EXPECT_EQ(claves.size(), 1);
        return claves.value(0);
    }
    /// The participants of one declaration as they lie in the file, past the server.
    Filas filas(qint32 csde) {
        const store::Opening fichero{estado().RutaBDModificacion, store::FileKind::Declarations,
                                     store::Access::Read};
        return store::WithDatabase(fichero, [csde](SQLite::Database& db) {
            SQLite::Statement consulta(
                db, "SELECT cspa, DNI, NOMBRE, PorcenPart FROM TParticipes WHERE csde = ?");
            consulta.bind(1, csde);
            Filas todas;
            while (consulta.executeStep())
                todas[consulta.getColumn(0)] =
                    QString::fromStdString(consulta.getColumn(1)).trimmed() + u' ' +
                    QString::fromStdString(consulta.getColumn(2)).trimmed() + u' ' +
                    QString::number(consulta.getColumn(3).getDouble());
            return todas;
        });
    }
    /// All rows of participants in the file, of whatever declaration.
    int cuantasFilas() {
        const store::Opening fichero{estado().RutaBDModificacion, store::FileKind::Declarations,
                                     store::Access::Read};
        return store::WithDatabase(fichero, [](SQLite::Database& db) -> int {
            return db.execAndGet("SELECT count(*) FROM TParticipes");
        });
    }
    /// The participants of a declaration, sorted.
    QStringList guardados(qint32 csde) {
        QStringList todos = filas(csde).values();
        todos.sort();
        return todos;
    }

    const QString ane = QStringLiteral("12345678Z ANE 60"),
                  jon = QStringLiteral("X1234567L JON 40");
};

}  // namespace padral::pruebas
