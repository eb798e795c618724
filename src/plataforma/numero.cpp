#include "plataforma/numero.h"

#include "plataforma/falha.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace tramelo {
namespace {

bool Branco(char c) { return c == ' ' || c == '\t'; }
bool Digito(char c) { return c >= '0' && c <= '9'; }

// The significant digits of x > 0 rounded to `digitos`, from its shortest
// round-trip text, which is fast. That text is the nearest of its length to x,
// so rounding it gives the rounding of x itself, except on a tie: a lone "5"
// after the kept digits (the text has no trailing zeros, so "50" can't be).
// Then the caller rounds the exact value.
bool Digitos(double x, int digitos, char* mantissa, int& n, int& expoente) {
    char buf[64];
    auto [fim, ec] = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific);
    if (ec != std::errc()) return false;
    char* e = static_cast<char*>(std::memchr(buf, 'e', static_cast<size_t>(fim - buf)));
    std::from_chars(e[1] == '+' ? e + 2 : e + 1, fim, expoente);
    n = 0;
    for (char* p = buf; p < e; ++p)
        if (*p != '.') mantissa[n++] = *p;
    if (n <= digitos) return true;
    const char* resto = mantissa + digitos;
    const int nResto = n - digitos;
    if (nResto == 1 && resto[0] == '5') return false;
    const bool sobe = resto[0] >= '5';
    n = digitos;
    if (sobe) {
        int i = n - 1;
        while (i >= 0 && mantissa[i] == '9') mantissa[i--] = '0';
        if (i < 0) {
            mantissa[0] = '1';
            ++expoente;
        } else {
            ++mantissa[i];
        }
    }
    return true;
}

// Writes x in the default text form; `digitos` is the number of significant
// digits to keep (15 for a double, 7 for a single).
void Formata(std::string& saida, double x, int digitos) {
    // The program's arithmetic fails before it makes these; a value that
    // arrives anyway gets the platform runtime's own text for it.
    if (std::isnan(x)) {
        saida += "-1,#IND";
        return;
    }
    if (std::isinf(x)) {
        saida += x < 0 ? "-1,#INF" : "1,#INF";
        return;
    }
    if (x == 0) {
        saida += '0';
        return;
    }
    char mantissa[32];
    int n = 0;
    int expoente = 0;
    if (!Digitos(std::fabs(x), digitos, mantissa, n, expoente)) {
        // d.ddddde+XX with `digitos` significant digits, correctly rounded.
        char buf[64];
        auto [fim, ec] = std::to_chars(buf, buf + sizeof buf, std::fabs(x),
                                       std::chars_format::scientific, digitos - 1);
        (void)ec;
        char* e = static_cast<char*>(std::memchr(buf, 'e', static_cast<size_t>(fim - buf)));
        std::from_chars(e[1] == '+' ? e + 2 : e + 1, fim, expoente);
        n = 0;
        for (char* p = buf; p < e; ++p)
            if (*p != '.') mantissa[n++] = *p;
    }
    while (n > 1 && mantissa[n - 1] == '0') --n;

    if (x < 0) saida += '-';
    if (expoente >= -4 && expoente < 15) {
        if (expoente < 0) {
            saida += "0,";
            saida.append(static_cast<size_t>(-expoente - 1), '0');
            saida.append(mantissa, static_cast<size_t>(n));
        } else if (n <= expoente + 1) {
            saida.append(mantissa, static_cast<size_t>(n));
            saida.append(static_cast<size_t>(expoente + 1 - n), '0');
        } else {
            saida.append(mantissa, static_cast<size_t>(expoente + 1));
            saida += ',';
            saida.append(mantissa + expoente + 1, static_cast<size_t>(n - expoente - 1));
        }
        return;
    }
    saida += mantissa[0];
    if (n > 1) {
        saida += ',';
        saida.append(mantissa + 1, static_cast<size_t>(n - 1));
    }
    saida += expoente < 0 ? "E-" : "E+";
    int a = expoente < 0 ? -expoente : expoente;
    if (a < 10) saida += '0';
    char eb[8];
    auto r = std::to_chars(eb, eb + sizeof eb, a);
    saida.append(eb, r.ptr);
}

} // namespace

std::optional<double> LeNumero(std::string_view t) {
    size_t i = 0, n = t.size();
    while (i < n && Branco(t[i])) ++i;
    while (n > i && Branco(t[n - 1])) --n;
    // Rebuilt in the C form that from_chars reads: digits, ".", "e". The text
    // has no length limit, so neither has the number: it is read whole.
    std::string buf;
    buf.reserve(n - i + 1);
    bool negativo = false;
    if (i < n && (t[i] == '+' || t[i] == '-')) negativo = t[i++] == '-';
    bool temDigito = false, temDecimal = false;
    for (; i < n; ++i) {
        char c = t[i];
        if (Digito(c)) {
            buf += c;
            temDigito = true;
        } else if (c == '.') {
            if (temDecimal) return std::nullopt; // no thousands after the decimals
        } else if (c == ',') {
            if (temDecimal) return std::nullopt;
            temDecimal = true;
            buf += '.';
        } else {
            break;
        }
    }
    if (!temDigito) return std::nullopt;
    if (i < n) {
        if (t[i] != 'e' && t[i] != 'E') return std::nullopt;
        buf += 'e';
        ++i;
        if (i < n && (t[i] == '+' || t[i] == '-')) buf += t[i++];
        bool temExpoente = false;
        for (; i < n && Digito(t[i]); ++i) {
            buf += t[i];
            temExpoente = true;
        }
        if (!temExpoente || i < n) return std::nullopt;
    }
    const size_t k = buf.size();
    double v = 0;
    auto r = std::from_chars(buf.data(), buf.data() + k, v);
    if (r.ec == std::errc::result_out_of_range) {
        // Below the smallest double the platform gives 0; above the largest,
        // overflow. The decimal exponent of the first significant digit tells which.
        int expoente = 0, ponto = -1, primeiro = -1, n = 0;
        for (size_t j = 0; j < k && buf[j] != 'e'; ++j) {
            if (buf[j] == '.') { ponto = n; continue; }
            if (primeiro < 0 && buf[j] != '0') primeiro = n;
            ++n;
        }
        if (const size_t e = buf.find('e'); e != std::string::npos) {
            const char* p = buf.data() + e + (buf[e + 1] == '+' ? 2 : 1);
            // An exponent beyond any int is beyond the range either way.
            if (std::from_chars(p, buf.data() + k, expoente).ec != std::errc())
                expoente = buf[e + 1] == '-' ? std::numeric_limits<int>::min() / 2
                                             : std::numeric_limits<int>::max() / 2;
        }
        if (ponto < 0) ponto = n;
        // In 64 bits: hundreds of thousands of digits with an exponent near
        // the limit of an int still compare the right way.
        if (primeiro < 0 || static_cast<long long>(ponto) - primeiro - 1 + expoente < 0)
            return negativo ? -0.0 : 0.0;
        return negativo ? -HUGE_VAL : HUGE_VAL;
    }
    if (r.ec != std::errc() || r.ptr != buf.data() + k) return std::nullopt;
    return negativo ? -v : v;
}

std::optional<double> LeNumeroPontoOuVirgula(std::string_view texto) {
    if (texto.find(',') != std::string_view::npos) return LeNumero(texto);
    std::string t(texto);
    for (char& c : t)
        if (c == '.') c = ',';
    return LeNumero(t);
}

double TextoParaNumero(std::string_view texto) {
    auto v = LeNumero(texto);
    if (!v) throw Falha(TiposIncompativeis);
    if (std::isinf(*v)) throw Falha(Estouro);
    return *v;
}

std::string NumeroParaTexto(double x) {
    std::string s;
    Formata(s, x, 15);
    return s;
}

std::string NumeroParaTexto(double x, int digitos) {
    std::string s;
    Formata(s, x, digitos < 1 ? 1 : digitos > 15 ? 15 : digitos);
    return s;
}

void AcrescentaNumero(std::string& saida, double x) { Formata(saida, x, 15); }

std::string NumeroSimplesParaTexto(float x) {
    std::string s;
    Formata(s, static_cast<double>(x), 7);
    return s;
}

double Val(std::string_view t) {
    std::string limpo;
    for (char c : t)
        if (!Branco(c) && c != '\n' && c != '\r') limpo += c;
    if (limpo.size() >= 2 && limpo[0] == '&' && (limpo[1] == 'H' || limpo[1] == 'h')) {
        // At most 16 hex digits, which fill 64 bits without wrapping.
        unsigned long long v = 0;
        size_t i = 2;
        for (; i < limpo.size() && i < 18; ++i) {
            char c = limpo[i];
            int d = Digito(c) ? c - '0' : (c >= 'a' && c <= 'f') ? c - 'a' + 10
                                        : (c >= 'A' && c <= 'F') ? c - 'A' + 10 : -1;
            if (d < 0) break;
            v = v * 16 + d;
        }
        return static_cast<double>(v);
    }
    size_t i = 0;
    std::string buf;
    if (i < limpo.size() && (limpo[i] == '+' || limpo[i] == '-')) buf += limpo[i++];
    bool ponto = false;
    for (; i < limpo.size(); ++i) {
        char c = limpo[i];
        if (Digito(c)) buf += c;
        else if (c == '.' && !ponto) { ponto = true; buf += c; }
        else break;
    }
    if (i < limpo.size() && (limpo[i] == 'e' || limpo[i] == 'E' || limpo[i] == 'd' ||
                             limpo[i] == 'D')) {
        std::string exp = "e";
        size_t j = i + 1;
        if (j < limpo.size() && (limpo[j] == '+' || limpo[j] == '-')) exp += limpo[j++];
        size_t inicio = exp.size();
        for (; j < limpo.size() && Digito(limpo[j]); ++j) exp += limpo[j];
        if (exp.size() > inicio) buf += exp;
    }
    double v = 0;
    const char* p = buf.c_str();
    if (*p == '+') ++p;
    auto r = std::from_chars(p, buf.c_str() + buf.size(), v);
    if (r.ec != std::errc()) return 0;
    return v;
}

short CInt(double x) {
    double r = std::nearbyint(x); // the default rounding mode rounds half to even
    if (!(r >= -32768 && r <= 32767)) throw Falha(Estouro);
    return static_cast<short>(r);
}

} // namespace tramelo
