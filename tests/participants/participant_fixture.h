#pragma once
// The screen of a participant over one open declaration.

#include <QListWidget>

#include "location/screen_driver.h"
#include "participants/screen/frm_datos_participe.h"

namespace padral::pruebas {

/// Participants that break no rule, in the territory's own province and in another one.
inline DatosParticipe participePropio(const char16_t* dni = u"12345678Z") {
    DatosParticipe p;
    p.DNI = q(dni);
    p.NOMBRE = q(u"LASA JON");
    p.SiglasDom = q(u"CL");
    p.DESCRIPCIONVIA = q(u"Calle");
    p.NombreVia = q(u"MAYOR");
    p.CodigoProvincia = 20;
    p.NombreProvincia = q(u"Kelmaria");
    p.CodPostal = 20001;
    p.CodMun = 1;
    p.NombMun = q(u"Aldabarri");
    p.PorcenPart = 33.25F;
    return p;
}
inline DatosParticipe participeAjeno(const char16_t* dni = u"12345678Z") {
    DatosParticipe p = participePropio(dni);
    p.CodigoProvincia = 28;
    p.NombreProvincia = q(u"Madrid");
    p.CodPostal = 28001;
    p.CodMun = 0;
    p.NombMun = q(u"POBLADO");
    return p;
}
/// Every field holds something.
inline DatosParticipe participeCompleto() {
    DatosParticipe p = participeAjeno();
    p.Numero = 7;
    p.Letra = q(u"B");
    p.Escalera = q(u"1");
    p.Piso = q(u"2");
    p.Mano = q(u"IZ");
    p.Telefono = 943000000;
    p.EdIRPF = q(u"O");
    p.EqIRPF = q(u"R");
    p.SimplifIVA = q(u"A");
    p.Agric = q(u"R");
    return p;
}

class PantallaParticipe : public ConPantalla {
protected:
    using Participe = std::shared_ptr<cParticipes>;

    void SetUp() override {
        ConPantalla::SetUp();
        d.InicializarDeclaracion();
        d.csde = 12;
    }

    void abrir() { ConPantalla::abrir(std::make_unique<frmDatosParticipe>(contexto(), d)); }
    /// A new participant, as the declaration prepares it.
    void abrirNuevo() {
        d.EmpezarParticipe().MODIFPARTICIPES = true;
        abrir();
    }
    /// A participant of the collection, accepted as it is; the current one stays.
    Participe poner(const DatosParticipe& datos, const char16_t* modo = u"C", qint32 cspa = 0) {
        auto nuevo = ponerParticipe(u"", modo);
        static_cast<DatosParticipe&>(*nuevo) = datos;
        nuevo->cspa = cspa;
        nuevo->RellenarTablaAuxiliar();
        return nuevo;
    }
    /// Opens a participant of the collection, as the list does.
    void ver(const Participe& participe) {
        d.participantes.ParticipeActual = participe;
        participe->Modo = q(u"C");
        participe->MODIFPARTICIPES = false;
        abrir();
    }
    Participe verUno(const DatosParticipe& datos = participeAjeno()) {
        const auto participe = poner(datos);
        ver(participe);
        return participe;
    }

    cParticipes& p() { return *d.participantes.ParticipeActual; }
    const DatosParticipe& datos() { return p(); }
    std::size_t cuantos() const { return d.participantes.colParticipes.size(); }
    /// Nothing of the current participant changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const DatosParticipe antes = p();
        const bool pendiente = p().MODIFPARTICIPES;
        hacer();
        EXPECT_TRUE(datos() == antes);
        EXPECT_EQ(p().MODIFPARTICIPES, pendiente);
    }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    QString texto(const char16_t* nombre) { return ConPantalla::texto(q(nombre)); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool bloqueado(const char16_t* nombre) { return ConPantalla::bloqueado(q(nombre)); }
    bool marcada(const char16_t* nombre) { return ConPantalla::marcada(q(nombre)); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }
    void escribir(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::escribir(q(nombre), q(valor));
    }
    /// Types and leaves with Tab.
    void rellenar(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::rellenar(q(nombre), q(valor));
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar frmDatosParticipe")};
    }
    /// The states of Volver and Otro partícipe, each with its picture.
    void esperaBotones(bool volver, bool otro) {
        EXPECT_EQ(habilitado(u"cmdVolver"), volver);
        EXPECT_EQ(habilitado(u"PicAnterior"), volver);
        EXPECT_EQ(habilitado(u"cmdOtroParticipe"), otro);
        EXPECT_EQ(habilitado(u"PicNuevo"), otro);
        for (const auto* siempre : {u"cmdAceptar", u"PicOKey", u"cmdCancelar", u"PicCan",
                                    u"cmdListaSiglas", u"cmdListaProvincias"})
            EXPECT_TRUE(habilitado(siempre)) << s(siempre);
    }
    /// The list is open, has the focus and that row selected.
    void esperaLista(const char16_t* nombre, const QString& fila) {
        auto* abierta = c<QListWidget>(nombre);
        EXPECT_TRUE(abierta->isVisible());
        EXPECT_EQ(foco(), q(nombre));
        ASSERT_NE(abierta->currentItem(), nullptr);
        EXPECT_EQ(abierta->currentItem()->text(), fila);
    }
    /// Selects a row by its text and picks it.
    void elegir(const char16_t* nombre, const QString& fila, bool conIntro) {
        auto* abierta = c<QListWidget>(nombre);
        const auto filas = abierta->findItems(fila, Qt::MatchExactly);
        ASSERT_EQ(filas.size(), 1) << fila.toStdString();
        abierta->setCurrentItem(filas.front());
        if (conIntro) return tecla(Qt::Key_Return);
        abierta->scrollToItem(filas.front());
        const QPoint punto = abierta->visualItemRect(filas.front()).center();
        QTest::mouseClick(abierta->viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(abierta->viewport(), Qt::LeftButton, {}, punto);
        QCoreApplication::processEvents();
    }
};

}  // namespace padral::pruebas
