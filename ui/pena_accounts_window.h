#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>

#include "syndicates/reports.h"

namespace quinteva::ui {

// Las cuentas en pantalla: "I&nforme Peña" (con gastos) o "Detalle de Jornadas" de un
// Apostante, con "&Visor" para la vista que se imprime.
class VentanaCuentas : public QDialog {
    Q_OBJECT

  public:
    VentanaCuentas(const QString& titulo, const QStringList& cabecera,
                   const syndicates::Cuentas& cuentas, bool conGastos, std::function<void()> visor,
                   QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
