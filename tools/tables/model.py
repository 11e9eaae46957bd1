"""The astronomy behind the printed tables of the taqribi treatises.

Everything here is public astronomy: the Ptolemaic sun and moon of the zij of Ulugh Beg for the
equations, the principal terms of the modern lunar theory (as Meeus gives them) for the moon's
hourly motion, and Smart's formula (as Meeus gives it) for the equation of time of today's
calendar. Angles are in degrees, times in hours or minutes as each function says.

Only the Python standard library is used, so that anyone can run the generator.
"""

import math
from fractions import Fraction

RAD = math.pi / 180


def sexagesimal(degrees, minutes=0, seconds=0, thirds=0):
    """An angle (or a time) given in sexagesimal fields, as an exact fraction of its unit."""
    return Fraction(degrees) + Fraction(minutes, 60) + Fraction(seconds, 3600) + Fraction(thirds, 216000)


# ---------------------------------------------------------------------------------------------
# The mean motions per lunation, from the treatises' own thirty-year rows.
#
# Fathu al-Ro'uf, Tadzkirotu al-Ikhwan, Ittifaq Dzatu al-Bain and Faidlu al-Karim add, for every
# thirty lunar years (360 lunations), the rows below; the whole revolutions that the printed row
# leaves out are restored. Sullam al-Nairoin's ten-year rows agree with them for the alamah and
# the markaz, and its eclipse module takes two minutes of hishshoh and one of khossyoh off its
# base for every ten years, which brings its ten-year rows (80 30 and 218 00) exactly onto these
# (80 28 and 217 59); Khulashotu al-Wafiyah's ten-year rows for the khossyoh (217 59) and the
# wasath (252 48) agree as well.
# ---------------------------------------------------------------------------------------------

LUNATIONS_PER_GROUP = 360

# (whole revolutions restored, the printed thirty-year row). The moon's arguments make more than
# a turn a lunation (390 and 385 turns in 360 lunations): a fraction of a lunation, such as the
# half that reaches the full moon, needs the whole turns, not only the rest modulo 360.
THIRTY_YEAR_ROWS = {
    # alamah: 10631 days (1518 weeks and 5 days) and 0 h 15 m; days are counted separately.
    "alamah_days": Fraction(10631) + Fraction(15, 24 * 60),
    "hishshoh": 390 * 360 + sexagesimal(8 * 30 + 1, 24),  # 08 01 24
    "wasath": 29 * 360 + sexagesimal(1 * 30 + 8, 24),  # 01 08 24
    "khossyoh": 385 * 360 + sexagesimal(9 * 30 + 23, 57),  # 09 23 57
    "markaz": 29 * 360 + sexagesimal(1 * 30 + 8, 0),  # 01 08 00
}


def per_lunation(element):
    """Mean motion of an element over one lunation, exact (days for the alamah, else degrees)."""
    return THIRTY_YEAR_ROWS[element] / LUNATIONS_PER_GROUP


# ---------------------------------------------------------------------------------------------
# The Ptolemaic sun and moon of the zij of Ulugh Beg.
# ---------------------------------------------------------------------------------------------

# The sun on an eccentric whose greatest equation of the centre is 1 55 53.
SUN_GREATEST_EQUATION = float(sexagesimal(1, 55, 53))
SUN_ECCENTRICITY = math.sin(SUN_GREATEST_EQUATION * RAD)

# The moon at syzygy on an epicycle of 5;15 parts of the 60 of its distance.
MOON_EPICYCLE = 5.25 / 60
MOON_GREATEST_EQUATION = math.asin(MOON_EPICYCLE) / RAD  # 5 01 11

# Greatest latitude of the moon.
MOON_INCLINATION = 5.0

# Obliquity of the ecliptic in the zij (23 30 17), used for the equation of days.
ZIJ_OBLIQUITY = float(sexagesimal(23, 30, 17))


def sun_equation(markaz):
    """Equation of the sun's centre for its mean anomaly counted from the apogee.

    Positive in the first half of the circle: the true sun is the mean sun less this.
    """
    m = markaz * RAD
    return math.atan2(SUN_ECCENTRICITY * math.sin(m), 1 + SUN_ECCENTRICITY * math.cos(m)) / RAD


def moon_equation(khossyoh):
    """Equation of the moon at syzygy for its mean anomaly counted from the epicycle's apogee.

    Positive in the first half of the circle: the true moon is the mean moon less this.
    """
    k = khossyoh * RAD
    return math.atan2(MOON_EPICYCLE * math.sin(k), 1 + MOON_EPICYCLE * math.cos(k)) / RAD


def moon_latitude(hishshoh):
    """The moon's latitude for its argument of latitude counted from the ascending node."""
    return math.asin(math.sin(MOON_INCLINATION * RAD) * math.sin(hishshoh * RAD)) / RAD


def equation_of_days(true_longitude, apogee, obliquity=ZIJ_OBLIQUITY):
    """Equation of time of the zij's sun, apparent less mean, in minutes of time.

    The mean sun is found from the true one by undoing the equation of the centre; the
    difference of the mean longitude and the true sun's right ascension, in degrees of the
    equator, is four minutes of time a degree.
    """
    anomaly = true_longitude - apogee
    for _ in range(30):
        anomaly = true_longitude - apogee + sun_equation(anomaly)
    mean_longitude = anomaly + apogee
    lam = true_longitude * RAD
    right_ascension = math.atan2(math.cos(obliquity * RAD) * math.sin(lam), math.cos(lam)) / RAD
    difference = (mean_longitude - right_ascension + 180) % 360 - 180
    return 4 * difference


# ---------------------------------------------------------------------------------------------
# The moon's hourly motion in elongation at syzygy.
#
# The printed reckonings need the moon's true hourly motion, which runs from about 0 27 an hour
# near the apogee to about 0 36 near the perigee. The Ptolemaic epicycle at syzygy gives only
# 0 27 50 to 0 33 36 and misses the second printed result by some fifty minutes. The motion
# is therefore taken from the principal periodic terms of the modern lunar theory at new moon
# (D = 0): the ellipse (6.289 sin M' and 0.214 sin 2M'), the evection (1.274 sin (2D - M')) and
# the variation (0.658 sin 2D), with the anomaly M' counted from the perigee, that is the
# treatise's khossyoh less 180 degrees. The sun's mean motion is taken off.
# ---------------------------------------------------------------------------------------------

MOON_MEAN_MOTION = 13.176396  # degrees a day, in longitude
MOON_ANOMALY_MOTION = 13.064993  # degrees a day, anomaly
MOON_ELONGATION_MOTION = 12.190749  # degrees a day, mean elongation D
SUN_MEAN_MOTION = 0.985647  # degrees a day


def moon_daily_motion_at_syzygy(khossyoh):
    """The moon's true motion in longitude at new moon, degrees a day."""
    m = (khossyoh - 180) * RAD
    terms = (
        6.289 * MOON_ANOMALY_MOTION * math.cos(m)
        + 1.274 * (2 * MOON_ELONGATION_MOTION - MOON_ANOMALY_MOTION) * math.cos(m)
        + 0.658 * 2 * MOON_ELONGATION_MOTION
        + 0.214 * 2 * MOON_ANOMALY_MOTION * math.cos(2 * m)
    )
    return MOON_MEAN_MOTION + terms * RAD


def elongation_per_hour(khossyoh):
    """The moon's hourly motion away from the sun at new moon, degrees an hour."""
    return (moon_daily_motion_at_syzygy(khossyoh) - SUN_MEAN_MOTION) / 24


def hours_per_degree(khossyoh):
    """Hours the moon needs to gain one degree on the sun at new moon."""
    return 1 / elongation_per_hour(khossyoh)


def hours_per_degree_ptolemaic(khossyoh):
    """The same from the Ptolemaic epicycle at syzygy alone; kept for comparison."""
    k = khossyoh * RAD
    slope = MOON_EPICYCLE * (MOON_EPICYCLE + math.cos(k)) / (1 + 2 * MOON_EPICYCLE * math.cos(k) + MOON_EPICYCLE**2)
    return 24 / (MOON_MEAN_MOTION - MOON_ANOMALY_MOTION * slope - SUN_MEAN_MOTION)


def mean_elongation_per_hour():
    """The mean gain of the moon on the sun, degrees an hour, from the treatises' month."""
    return 360 / (float(per_lunation("alamah_days")) * 24)


# ---------------------------------------------------------------------------------------------
# The equation of time of today's calendar (Meeus, Astronomical Algorithms, ch. 25 and 28).
# ---------------------------------------------------------------------------------------------


def julian_day(year, month, day, hour=0.0):
    """Julian day of a Gregorian date and hour of Universal Time."""
    if month <= 2:
        year -= 1
        month += 12
    a = year // 100
    b = 2 - a + a // 4
    return math.floor(365.25 * (year + 4716)) + math.floor(30.6001 * (month + 1)) + day + b - 1524.5 + hour / 24


def equation_of_time(jd):
    """Apparent less mean solar time, minutes, by Smart's formula with Meeus's elements."""
    t = (jd - 2451545.0) / 36525
    l0 = (280.46646 + 36000.76983 * t + 0.0003032 * t * t) * RAD
    m = (357.52911 + 35999.05029 * t - 0.0001537 * t * t) * RAD
    e = 0.016708634 - 0.000042037 * t - 0.0000001267 * t * t
    eps = (23 + 26 / 60 + 21.448 / 3600 - (46.8150 * t + 0.00059 * t * t) / 3600) * RAD
    y = math.tan(eps / 2) ** 2
    value = (
        y * math.sin(2 * l0)
        - 2 * e * math.sin(m)
        + 4 * e * y * math.sin(m) * math.cos(2 * l0)
        - 0.5 * y * y * math.sin(4 * l0)
        - 1.25 * e * e * math.sin(2 * m)
    )
    return 4 * value / RAD
