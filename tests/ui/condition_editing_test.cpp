#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

#include "builders/automatic_percent.h"
#include "builders/conditions_history.h"
#include "engine/editing_rules.h"
#include "seasons/startup.h"
#include "tests/ui/window_fixture.h"
#include "ui/conditions_history_window.h"

using namespace quinteva;
using pruebas::Hijo;

namespace {

// Lo que el programa mostró desde la marca dada.
std::vector<std::string> Desde(const pruebas::DialogoGuionado& dialogo, std::size_t marca) {
    const auto textos = dialogo.Textos();
    return {textos.begin() + static_cast<std::ptrdiff_t>(marca), textos.end()};
}

std::vector<std::string> Solo(std::string_view texto) { return {std::string(texto)}; }

// La ventana con la base de ejemplo (1 y 2 dobles 1X, 3 y 4 triples, el resto "1") en la página
// "Condicion.".
std::unique_ptr<ui::VentanaPrincipal> EnCondiciones(pruebas::Instalacion& inst) {
    auto v = inst.Ventana();
    pruebas::ElegirJornada(*v, 25);
    pruebas::BaseDeEjemplo(*v);
    pruebas::Pagina(*v, ui::kCondicion);
    return v;
}

void QuitarEquisDelPartido1(ui::VentanaPrincipal& v) {
    pruebas::Pulsar(Hijo<QTableWidget>(v, QStringLiteral("RejillaBase")), 0, 3);
}

void Elegir(ui::VentanaPrincipal& v, const QString& lista, int valor) {
    auto* l = Hijo<QComboBox>(v, lista);
    emit l->activated(l->findData(valor));
}

void ElegirIndice(ui::VentanaPrincipal& v, const QString& lista, int indice) {
    auto* l = Hijo<QComboBox>(v, lista);
    l->setCurrentIndex(indice);
    emit l->activated(indice);
}

}  // namespace

class PruebaEdicionCondiciones : public QObject {
    Q_OBJECT

  private slots:
    void QuitarUnSignoQueMueveVariosLimitesAvisaUnaSolaVez() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        auto* generales = Hijo<QTableWidget>(*v, "RejillaGenerales");
        pruebas::Pulsar(generales, 3, 1);  // V de 3 a 4
        pruebas::Pulsar(generales, 2, 2);  // X de 2 a 4
        const auto& c = v->Combinacion().condiciones;
        QCOMPARE(int{c.minVariantes}, 3);
        QCOMPARE(int{c.minEquis}, 2);
        const std::size_t marca = inst.dialogo.Registro().size();
        QuitarEquisDelPartido1(*v);
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgGeneralesTocados));
        QCOMPARE(int{c.posMaxEquis}, 3);
        QCOMPARE(int{c.minEquis}, 2);
        QCOMPARE(int{c.maxEquis}, 3);
        QCOMPARE(int{c.minVariantes}, 3);
        QCOMPARE(int{c.maxVariantes}, 3);
        // La fila 4 de X ya no es posible: gris y sin número.
        QCOMPARE(generales->item(4, 2)->text(), QString());
        QCOMPARE(generales->item(3, 2)->text(), QStringLiteral("3"));
    }

    void UnValorIgualAlNuevoPosibleSeQuedaSinAviso() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "RejillaGenerales"), 4, 2);  // X de 0 a 3
        Elegir(*v, "MaxSegX", 3);
        const auto& c = v->Combinacion().condiciones;
        QCOMPARE(int{c.maxEquis}, 3);
        QCOMPARE(int{c.maxSeg[engine::kEquis]}, 3);
        const std::size_t marca = inst.dialogo.Registro().size();
        QuitarEquisDelPartido1(*v);
        QCOMPARE(Desde(inst.dialogo, marca), std::vector<std::string>{});
        QCOMPARE(int{c.posMaxEquis}, 3);
        QCOMPARE(int{c.maxEquis}, 3);
        QCOMPARE(int{c.posMaxSeg[engine::kEquis]}, 3);
        QCOMPARE(int{c.maxSeg[engine::kEquis]}, 3);
        QCOMPARE(Hijo<QComboBox>(*v, "MaxSegX")->currentText(), QStringLiteral("3"));
    }

    void UnSeguidoFueraDelNuevoRangoSeRecortaConSuAviso() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        Elegir(*v, "MinSegX", 4);
        const std::size_t marca = inst.dialogo.Registro().size();
        QuitarEquisDelPartido1(*v);
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgSeguidosTocados));
        QCOMPARE(int{v->Combinacion().condiciones.minSeg[engine::kEquis]}, 3);
        QCOMPARE(Hijo<QComboBox>(*v, "MinSegX")->currentText(), QStringLiteral("3"));
        QCOMPARE(Hijo<QComboBox>(*v, "MaxSegX")->count(), 4);  // 0 a 3
    }

    void VolverAPonerElSignoNoDevuelveLosLimitesRecortados() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "RejillaGenerales"), 2, 2);  // X de 2 a 4
        const std::size_t marca = inst.dialogo.Registro().size();
        QuitarEquisDelPartido1(*v);
        QuitarEquisDelPartido1(*v);  // la vuelve a poner
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgGeneralesTocados));
        const auto& c = v->Combinacion().condiciones;
        QCOMPARE(int{c.posMaxEquis}, 4);
        QCOMPARE(int{c.maxEquis}, 3);
    }

    void LosGruposTocadosPorLaBaseSeAjustanYAvisanCadaUno() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "PartidosGrupo"), 0, 1);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "PartidosGrupo"), 1, 1);
        // "X" del Grupo: de 0 a 2 posibles; pulsar el 0 deja 1 a 2 y activa el Grupo.
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "LimitesGrupo"), 0, 2);
        const auto& c = v->Combinacion().condiciones;
        QVERIFY(c.grupos[0].activo);
        QCOMPARE(int{c.grupos[0].min[engine::kEquis]}, 1);
        auto* ac = Hijo<QTableWidget>(*v, "PartidosGrupoAc");
        pruebas::Pulsar(ac, 0, 2);  // la "X" del partido 1
        pruebas::Pulsar(ac, 2, 3);  // el "2" del partido 3
        pruebas::Pulsar(ac, 4, 3);  // el partido 5 no tiene "2": no entra
        QCOMPARE(int{c.gruposAc[0].numPartidos}, 2);
        Hijo<QCheckBox>(*v, "Casilla6")->click();
        QVERIFY(c.gruposAc[0].activo);
        const std::size_t marca = inst.dialogo.Registro().size();
        QuitarEquisDelPartido1(*v);
        QCOMPARE(
            Desde(inst.dialogo, marca),
            (std::vector<std::string>{"Ha quedado modificado el Grupo número 1.",
                                      "Ha quedado modificado el Grupo de Aciertos número 1."}));
        QCOMPARE(int{c.grupos[0].posMax[engine::kEquis]}, 1);
        QCOMPARE(int{c.grupos[0].min[engine::kEquis]}, 1);
        QCOMPARE(int{c.gruposAc[0].numPartidos}, 1);
        QCOMPARE(ac->item(0, 2)->text(), QString());
        QCOMPARE(ac->item(2, 3)->text(), QStringLiteral("2"));
    }

    void UnaComparacionTocadaPorLaBaseSeApagaConUnAviso() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        auto* listas = Hijo<QTableWidget>(*v, "RejillaComparaciones");
        auto* fila = Hijo<QCheckBox>(*v, "Comparacion0");
        fila->click();
        QCOMPARE(inst.dialogo.Textos().back(), std::string(engine::kMsgComparacionIncompleta));
        QVERIFY(!fila->isChecked());
        for (auto [dato, indice] : {std::pair{0, 1}, {1, 1}, {2, 1}, {3, 2}, {4, 1}})
            ElegirIndice(*v, QStringLiteral("Comparacion0Dato%1").arg(dato), indice);
        fila->click();
        QCOMPARE(inst.dialogo.Textos().back(), std::string(engine::kMsgComparacionMismaColumna));
        ElegirIndice(*v, "Comparacion0Dato4", 2);
        fila->click();
        QCOMPARE(inst.dialogo.Textos().back(), std::string("En la columna A no hay '1'."));
        QVERIFY(!fila->isChecked());
        pruebas::Pulsar(listas, 0, 1);
        QCOMPARE(listas->item(0, 1)->text(), QStringLiteral("1X"));
        const std::size_t marca = inst.dialogo.Registro().size();
        fila->click();
        QCOMPARE(Desde(inst.dialogo, marca), std::vector<std::string>{});
        QVERIFY(fila->isChecked());
        QVERIFY(Hijo<QCheckBox>(*v, "Casilla8")->isChecked());

        QuitarEquisDelPartido1(*v);
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgComparacionesTocadas));
        QVERIFY(!fila->isChecked());
        QVERIFY(!Hijo<QCheckBox>(*v, "Casilla8")->isChecked());
        QCOMPARE(listas->item(0, 1)->text(), QStringLiteral("1"));
    }

    void ElParDeLimitesRechazaElCruceYLaListaVuelveASuValor() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        Elegir(*v, "MaxTrio0", 5);
        QVERIFY(Hijo<QCheckBox>(*v, "Casilla4")->isChecked());
        std::size_t marca = inst.dialogo.Registro().size();
        Elegir(*v, "MinTrio0", 6);
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgMinimoMayor));
        QCOMPARE(Hijo<QComboBox>(*v, "MinTrio0")->currentText(), QStringLiteral("0"));
        Elegir(*v, "MinTrio0", 3);
        marca = inst.dialogo.Registro().size();
        Elegir(*v, "MaxTrio0", 2);
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgMaximoMenor));
        QCOMPARE(Hijo<QComboBox>(*v, "MaxTrio0")->currentText(), QStringLiteral("5"));
        const auto& c = v->Combinacion().condiciones;
        QCOMPARE(int{c.minTrio[0]}, 3);
        QCOMPARE(int{c.maxTrio[0]}, 5);
    }

    void SinGruposActivosLaToleranciaPuedeSerUnoYNoMas() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        auto* tolerancia = Hijo<QSpinBox>(*v, "ToleranciaGrupos");
        const std::size_t marca = inst.dialogo.Registro().size();
        tolerancia->setValue(1);
        QCOMPARE(Desde(inst.dialogo, marca), std::vector<std::string>{});
        QCOMPARE(int{v->Combinacion().condiciones.ultimoGrupo}, 0);
        tolerancia->setValue(3);
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgToleranciaGrupos));
        QCOMPARE(tolerancia->value(), 1);
        QCOMPARE(int{v->Combinacion().condiciones.toleranciaGrupos}, 1);
        auto* toleranciaAc = Hijo<QSpinBox>(*v, "ToleranciaGruposAc");
        toleranciaAc->setValue(2);
        QCOMPARE(inst.dialogo.Textos().back(), std::string(engine::kMsgToleranciaGruposAc));
        QCOMPARE(toleranciaAc->value(), 1);
    }

    void RepeticionesElLargoHabilitaElLimiteYLoBorra() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        auto* limite = Hijo<QComboBox>(*v, "LimiteRepX");
        QVERIFY(!limite->isEnabled());
        Elegir(*v, "LongRepX", 2);
        QVERIFY(limite->isEnabled());
        QVERIFY(!Hijo<QCheckBox>(*v, "Casilla9")->isChecked());
        Elegir(*v, "LimiteRepX", 1);
        QVERIFY(Hijo<QCheckBox>(*v, "Casilla9")->isChecked());
        QCOMPARE(int{v->Combinacion().condiciones.limiteRep[engine::kEquis]}, 1);
        Elegir(*v, "LongRepX", 3);
        QCOMPARE(int{v->Combinacion().condiciones.limiteRep[engine::kEquis]}, 0);
        QCOMPARE(limite->currentText(), QString());
    }

    void SumasCadaFilaVaA100YLosLimitesSeValidanAlEncender() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        auto* sumas = Hijo<QTableWidget>(*v, "RejillaSumas");
        sumas->item(0, 1)->setText(QStringLiteral("60"));
        QCOMPARE(sumas->item(0, 2)->text(), QStringLiteral("40"));
        QCOMPARE(sumas->item(0, 3)->text(), QStringLiteral("0"));
        sumas->item(0, 3)->setText(QStringLiteral("50"));  // la siguiente es la del "1"
        QCOMPARE(sumas->item(0, 1)->text(), QStringLiteral("10"));
        QCOMPARE(sumas->item(0, 2)->text(), QStringLiteral("40"));
        QCOMPARE(int{v->Combinacion().condiciones.sumasTabla[0][0]}, 10);
        QCOMPARE(Hijo<QLabel>(*v, "SumaMasBaja")->text(), QStringLiteral("10"));
        QCOMPARE(Hijo<QLabel>(*v, "SumaMasAlta")->text(), QStringLiteral("50"));

        auto* casilla = Hijo<QCheckBox>(*v, "Casilla7");
        const std::size_t marca = inst.dialogo.Registro().size();
        casilla->click();
        QCOMPARE(Desde(inst.dialogo, marca), Solo(engine::kMsgSumasFuera));
        QVERIFY(!casilla->isChecked());
        Hijo<QLineEdit>(*v, "SumaMinima")->setText(QStringLiteral("20"));
        Hijo<QLineEdit>(*v, "SumaMaxima")->setText(QStringLiteral("40"));
        casilla->click();
        QVERIFY(casilla->isChecked());
        QCOMPARE(int{v->Combinacion().condiciones.sumaMinima}, 20);
        QCOMPARE(int{v->Combinacion().condiciones.sumaMaxima}, 40);
        QCOMPARE(Desde(inst.dialogo, marca).size(), std::size_t{1});

        // Una celda en blanco: sin sumas posibles, la casilla se apaga y los límites se bloquean.
        sumas->item(1, 2)->setText(QString());
        QVERIFY(!casilla->isChecked());
        QCOMPARE(Hijo<QLabel>(*v, "SumaMasBaja")->text(), QString());
        QVERIFY(!Hijo<QLineEdit>(*v, "SumaMinima")->isEnabled());
        QCOMPARE(Hijo<QLineEdit>(*v, "SumaMinima")->text(), QString());
    }

    // "&Histórico de condiciones" con la base de ejemplo y sin condiciones: cada ganadora guardada
    // las cumple; en la base, las que llevan signos de ella.
    void ElHistoricoDeCondicionesMuestraCadaGanadoraGuardada() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonHistoricoCondiciones"), Qt::LeftButton);
        auto* ventana = Hijo<ui::VentanaHistoricoCondiciones>(
            *v, QStringLiteral("VentanaHistoricoCondiciones"));
        const auto ganadoras = builders::GanadorasGuardadas(inst.trabajo.Ruta());
        QVERIFY(!ganadoras.empty());
        int enLaBase = 0;
        for (const auto& g : ganadoras) {
            bool dentro = true;
            for (int p = 1; p <= engine::kPartidos; ++p) {
                dentro = dentro &&
                         v->Combinacion().base.Elegido(
                             p, engine::IndiceSigno(g.signos[static_cast<std::size_t>(p - 1)]));
            }
            enLaBase += dentro ? 1 : 0;
        }
        const int n = static_cast<int>(ganadoras.size());
        QCOMPARE(pruebas::TextoDe(*ventana, "TextoGanadoras"),
                 QStringLiteral("Columnas ganadoras guardadas: %1 (en la Quiniela Base: %2)")
                     .arg(n)
                     .arg(enLaBase));
        QCOMPARE(pruebas::TextoDe(*ventana, "TextoPasan"),
                 QStringLiteral("Cumplen todas las condiciones: %1").arg(n));
        auto* jornadas = Hijo<QTableWidget>(*ventana, "RejillaJornadas");
        QCOMPARE(jornadas->rowCount(), n);
        QCOMPARE(jornadas->item(0, 4)->text(), QStringLiteral("Cumple"));
        QCOMPARE(Hijo<QTableWidget>(*ventana, "RejillaFamilias")->rowCount(), 0);
    }

    void ElPorcentajeAutomaticoLlenaSumasDesdeLaTemporada() {
        pruebas::Instalacion inst;
        auto v = EnCondiciones(inst);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonAutomatico"), Qt::LeftButton);
        std::array<std::string, engine::kPartidos> partidos;
        std::array<int, engine::kPartidos> divisiones{};
        const auto jornada = seasons::LeerJornadaQuiniela(v->Temporada().carpetaTemporada, 25);
        for (std::size_t p = 0; p < engine::kPartidos; ++p) {
            partidos[p] = jornada.partidos[p].equipos;
            divisiones[p] = jornada.partidos[p].division;
        }
        const auto esperada = builders::PorcentajesAutomaticos(v->Temporada().carpetaTemporada,
                                                               partidos, divisiones, inst.ajustes);
        const auto& tabla = v->Combinacion().condiciones.sumasTabla;
        auto* sumas = Hijo<QTableWidget>(*v, "RejillaSumas");
        int baja = 0;
        for (std::size_t p = 0; p < engine::kPartidos; ++p) {
            QCOMPARE(tabla[0][p] + tabla[1][p] + tabla[2][p], 100);
            for (std::size_t s = 0; s < 3; ++s) {
                QCOMPARE(int{tabla[s][p]}, esperada[p][s]);
                QCOMPARE(sumas->item(static_cast<int>(p), static_cast<int>(s) + 1)->text(),
                         QString::number(esperada[p][s]));
            }
            baja += std::min({esperada[p][0], esperada[p][1], esperada[p][2]});
        }
        // La demo tiene partidos de las dos divisiones: no todo es 50, 30, 20.
        QVERIFY(std::any_of(esperada.begin(), esperada.end(),
                            [](const auto& f) { return f != builders::kPorcentajesSinDivision; }));
        QCOMPARE(Hijo<QLabel>(*v, "SumaMasBaja")->text(), QString::number(baja));
        QVERIFY(Hijo<QLineEdit>(*v, "SumaMinima")->isEnabled());
    }

    void ElPrecioSaleAlAcabarLaGeneracion() {
        pruebas::Instalacion inst;
        inst.ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "1,5");
        auto v = EnCondiciones(inst);
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        QCOMPARE(v->Combinacion().activasGeneradas, 36);
        QCOMPARE(Hijo<QLabel>(*v, "EtiquetaPrecio")->text(), QStringLiteral("Precio: 54,00 Euros"));
        // Un cambio de condición lo deja en blanco.
        pruebas::Pagina(*v, ui::kCondicion);
        Elegir(*v, "MaxTrio0", 5);
        QCOMPARE(Hijo<QLabel>(*v, "EtiquetaPrecio")->text(), QString());
    }
};

QTEST_MAIN(PruebaEdicionCondiciones)
#include "condition_editing_test.moc"
