#include "engine/neighbourhoods.h"

namespace quinteva::engine {

Entornos::Entornos(std::span<const std::int32_t> codigos)
    : codigos_(codigos), indice_(static_cast<std::size_t>(kCodigosColumna), -1) {
    pares_.reserve(codigos.size());
    for (std::size_t i = 0; i < codigos.size(); ++i) {
        indice_[static_cast<std::size_t>(codigos[i])] = static_cast<std::int32_t>(i);
        std::uint32_t pares = 0;
        for (const int cifra : Cifras(codigos[i]))
            pares = (pares << 2) | static_cast<std::uint32_t>(cifra);
        pares_.push_back(pares);
    }
    for (std::size_t p = 0; p < kPartidos; ++p) {
        unsigned signos = 0;
        for (const std::uint32_t pares : pares_)
            signos |= 1U << ((pares >> (2 * (kPartidos - 1 - p))) & 3U);
        if (std::popcount(signos) > 1) libres_.push_back({p, detalle::kPesoPartido[p], signos});
    }
}

Entornos::CifrasColumna Entornos::Cifras(std::int32_t codigo) {
    CifrasColumna cifras{};
    for (int p = kPosiciones - 1; p >= 0; --p) {
        cifras[static_cast<std::size_t>(p)] = codigo % 3;
        codigo /= 3;
    }
    return cifras;
}

namespace {

// El tamaño de un entorno de radio r en los 3^14 códigos.
std::int64_t TamanoDeEntorno(int radio) {
    std::int64_t total = 0;
    std::int64_t combinaciones = 1;  // 14 sobre r, por 2^r
    for (int r = 0; r <= radio; ++r) {
        total += combinaciones;
        combinaciones = combinaciones * (kPartidos - r) / (r + 1) * 2;
    }
    return total;
}

}  // namespace

std::vector<std::int32_t> Entornos::Cuentas(int radio) const {
    const auto n = static_cast<std::int64_t>(codigos_.size());
    if (n * TamanoDeEntorno(radio) > std::int64_t{kCodigosColumna} * (radio + 1) * 8) {
        return CuentasPorTransformada(radio);
    }
    std::vector<std::int32_t> cuentas(codigos_.size(), 0);
    for (std::size_t i = 0; i < codigos_.size(); ++i)
        Cada(i, radio, [&](std::size_t) { ++cuentas[i]; });
    return cuentas;
}

// A[k][x]: cuántas columnas difieren de x en exactamente k de los partidos ya tratados y en
// ninguno de los demás. Al tratar un partido, las que difieren en él vienen de los otros dos
// valores de su cifra con k - 1 diferencias; de k alto a bajo, A[k - 1] aún es la de antes.
std::vector<std::int32_t> Entornos::CuentasPorTransformada(int radio) const {
    const auto codigos = static_cast<std::size_t>(kCodigosColumna);
    std::vector<std::vector<std::uint16_t>> a(static_cast<std::size_t>(radio) + 1,
                                              std::vector<std::uint16_t>(codigos, 0));
    for (const std::int32_t c : codigos_) a[0][static_cast<std::size_t>(c)] = 1;
    for (int p = 0; p < kPosiciones; ++p) {
        const auto peso =
            static_cast<std::size_t>(detalle::kPesoPartido[static_cast<std::size_t>(p)]);
        for (std::size_t alto = 0; alto < codigos; alto += 3 * peso) {
            for (std::size_t x = alto; x < alto + peso; ++x) {
                for (auto k = static_cast<std::size_t>(radio); k >= 1; --k) {
                    const auto& antes = a[k - 1];
                    const auto a0 = antes[x], a1 = antes[x + peso], a2 = antes[x + 2 * peso];
                    auto& ahora = a[k];
                    ahora[x] = static_cast<std::uint16_t>(ahora[x] + a1 + a2);
                    ahora[x + peso] = static_cast<std::uint16_t>(ahora[x + peso] + a0 + a2);
                    ahora[x + 2 * peso] = static_cast<std::uint16_t>(ahora[x + 2 * peso] + a0 + a1);
                }
            }
        }
    }
    std::vector<std::int32_t> cuentas;
    cuentas.reserve(codigos_.size());
    for (const std::int32_t c : codigos_) {
        std::int32_t total = 0;
        for (const auto& ak : a) total += ak[static_cast<std::size_t>(c)];
        cuentas.push_back(total);
    }
    return cuentas;
}

}  // namespace quinteva::engine
