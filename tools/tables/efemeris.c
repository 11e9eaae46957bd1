/*
 * The modern sky against which the reconstructed tables are checked: true conjunctions,
 * sunsets and the moon's height, from the Swiss Ephemeris (Debian's libswe, its JPL files in
 * /usr/share/libswe/ephe).
 *
 * A checking tool only. It is never built into falak or linked with it: the Swiss Ephemeris is
 * under the AGPL, and the product must not depend on it.
 *
 *   cc -O2 -o /tmp/efemeris tools/tables/efemeris.c -lswe -lm
 *
 * It reads one request a line on standard input and answers one line on standard output.
 * Times are Julian days of Universal Time; longitudes east and latitudes north are positive.
 *
 *   conj JD           the true conjunction nearest JD: apparent geocentric longitudes of sun
 *                     and moon equal. Answers its JD.
 *   sunset JD LON LAT the first sunset after JD: the sun's centre at geocentric altitude 0,
 *                     no refraction. Answers its JD.
 *   alt JD LON LAT    geocentric altitudes of the moon and the sun, no refraction, degrees,
 *                     the moon's geocentric elongation from the sun, and the moon's
 *                     topocentric altitude (at sea level), no refraction.
 *   eot JD            equation of time, apparent less mean, minutes.
 *   lon JD            apparent geocentric longitudes of the sun and the moon, and the moon's
 *                     latitude, degrees.
 */
#include <math.h>
#include <stdio.h>
#include <string.h>
#include <swephexp.h>

static double ecliptic(int body, double jd, double *speed) {
    double x[6];
    char err[AS_MAXCH];
    if (swe_calc_ut(jd, body, SEFLG_SWIEPH | SEFLG_SPEED, x, err) < 0) {
        fprintf(stderr, "efemeris: %s\n", err);
        return NAN;
    }
    if (speed) *speed = x[3];
    return x[0];
}

/* Moon less sun in longitude, folded into -180 .. 180. */
static double elongation(double jd, double *rate) {
    double vm, vs;
    const double d = ecliptic(SE_MOON, jd, &vm) - ecliptic(SE_SUN, jd, &vs);
    if (rate) *rate = vm - vs;
    return remainder(d, 360.0);
}

static double conjunction(double jd) {
    for (int i = 0; i < 20; ++i) {
        double rate;
        const double d = elongation(jd, &rate);
        const double step = d / rate;
        jd -= step;
        if (fabs(step) < 1e-9) break;
    }
    return jd;
}

/* Altitude without refraction, seen from the earth's centre or (topo) from the place. */
static double altitude_from(int body, double jd, double lon, double lat, int topo) {
    double x[6], hor[3];
    char err[AS_MAXCH];
    double geo[3] = {lon, lat, 0};
    int flags = SEFLG_SWIEPH | SEFLG_EQUATORIAL;
    if (topo) {
        swe_set_topo(lon, lat, 0);
        flags |= SEFLG_TOPOCTR;
    }
    if (swe_calc_ut(jd, body, flags, x, err) < 0) return NAN;
    swe_azalt(jd, SE_EQU2HOR, geo, 0, 0, x, hor);
    return hor[1];
}

static double altitude(int body, double jd, double lon, double lat) { return altitude_from(body, jd, lon, lat, 0); }

static double sunset(double jd, double lon, double lat) {
    const double step = 5.0 / 1440;
    double a = altitude(SE_SUN, jd, lon, lat);
    for (int i = 0; i < 2 * 288; ++i, jd += step) {
        const double b = altitude(SE_SUN, jd + step, lon, lat);
        if (a >= 0 && b < 0) {
            double lo = jd, hi = jd + step;
            for (int k = 0; k < 40; ++k) {
                const double mid = (lo + hi) / 2;
                if (altitude(SE_SUN, mid, lon, lat) >= 0) lo = mid; else hi = mid;
            }
            return (lo + hi) / 2;
        }
        a = b;
    }
    return NAN;
}

int main(void) {
    swe_set_ephe_path("/usr/share/libswe/ephe");
    char line[256], what[16];
    double jd, lon, lat;
    while (fgets(line, sizeof line, stdin)) {
        if (sscanf(line, "%15s %lf %lf %lf", what, &jd, &lon, &lat) < 2) continue;
        if (!strcmp(what, "conj")) {
            printf("%.8f\n", conjunction(jd));
        } else if (!strcmp(what, "sunset")) {
            printf("%.8f\n", sunset(jd, lon, lat));
        } else if (!strcmp(what, "alt")) {
            printf("%.6f %.6f %.6f %.6f\n", altitude(SE_MOON, jd, lon, lat), altitude(SE_SUN, jd, lon, lat),
                   fabs(elongation(jd, NULL)), altitude_from(SE_MOON, jd, lon, lat, 1));
        } else if (!strcmp(what, "lon")) {
            double x[6];
            char err[AS_MAXCH];
            swe_calc_ut(jd, SE_MOON, SEFLG_SWIEPH, x, err);
            printf("%.6f %.6f %.6f\n", ecliptic(SE_SUN, jd, NULL), x[0], x[1]);
        } else if (!strcmp(what, "eot")) {
            double e;
            char err[AS_MAXCH];
            swe_time_equ(jd, &e, err);
            printf("%.6f\n", e * 1440);
        } else {
            printf("?\n");
        }
        fflush(stdout);
    }
    swe_close();
    return 0;
}
