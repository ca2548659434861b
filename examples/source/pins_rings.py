"""Pins, retaining rings, keys and springs of the first release. Dimensions in millimetres."""

from .model import Table, between, fields, listed, rows, stepped

DATE = "2021-12-03T14:00:00Z"

PIN_LENGTHS = [4, 5, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30, 32, 35, 40, 45, 50, 55, 60,
               65, 70, 75, 80, 85, 90, 95, 100]


def iso8734():
    sizes = [(3, 0.5, 8, 30), (4, 0.6, 10, 40), (5, 0.8, 12, 50), (6, 1.2, 14, 60), (8, 1.6, 18, 80),
             (10, 2, 22, 100), (12, 2.5, 26, 100), (16, 3, 40, 100), (20, 3.5, 50, 100)]
    data = [(1000 + 10 * n, d, c, length) for n, (d, c, length) in enumerate(
        (d, c, length) for d, c, low, high in sizes for length in between(PIN_LENGTHS, low, high))]
    return Table("pins/iso8734", "ISO 8734", "ISO 8734 - {d} x {L} - A",
                 "Zylinderstift, gehärtet", "Parallel pin of hardened steel", fields("""
        Satz | Satznummer | Record number | id hidden
        d | Durchmesser m6 | Diameter m6 | key
        c | Fase | Chamfer
        L | Länge | Length | key
        """), rows("Satz d c L", data), DATE)


def iso2338():
    sizes = [(2, 0.35, "6;8..20/2"), (3, 0.5, "8..30/2"), (4, 0.63, "8;10..32/2;35;40"),
             (5, 0.8, "10..32/2;35..50/5"), (6, 1.2, "12..32/2;35..60/5"),
             (8, 1.6, "14..32/2;35..80/5"), (10, 2, "18..32/2;35..95/5"),
             (12, 2.5, "22..32/2;35..100/5"), (16, 3, "26..32/2;35..100/5"), (20, 3.5, stepped(35, 100, 5))]
    data = [(d, c, fit, length) for d, c, length in sizes for fit in ("m6", "h8")]
    return Table("pins/iso2338", "ISO 2338", "ISO 2338 - {d} {Tol} x {L}",
                 "Zylinderstift, ungehärtet", "Parallel pin of unhardened steel", fields("""
        d | Durchmesser | Diameter | key
        c | Fase | Chamfer
        Tol | Toleranzfeld | Tolerance class | text key
        L | Länge | Length | range
        """), rows("d c Tol L", data), DATE)


def iso8752():
    sizes = [(2, 0.4, 0.35, 4, 20), (2.5, 0.5, 0.4, 4, 30), (3, 0.6, 0.5, 4, 40), (4, 0.8, 0.65, 4, 50),
             (5, 1, 0.9, 5, 80), (6, 1.2, 1.2, 10, 100), (8, 1.5, 2, 10, 100), (10, 2, 2, 10, 100),
             (12, 2.5, 2, 10, 100)]
    data = [(d, s, a, listed(between(PIN_LENGTHS, low, high))) for d, s, a, low, high in sizes]
    return Table("pins/iso8752", "ISO 8752", "ISO 8752 - {d1} x {L}",
                 "Spannstift, schwere Ausführung", "Slotted spring pin, heavy duty", fields("""
        d1 | Nenndurchmesser | Nominal diameter | key
        s | Wanddicke | Wall thickness
        a | Fasenlänge | Length of the chamfer
        L | Länge | Length | range
        """), rows("d1 s a L", data), DATE)


def iso1234():
    sizes = [(1, 0.9, 1.8, 3, 1.6, 6, 20), (1.6, 1.4, 2.8, 3.2, 2.5, 8, 32), (2, 1.8, 3.6, 4, 2.5, 10, 40),
             (2.5, 2.3, 4.6, 5, 2.5, 12, 50), (3.2, 2.9, 5.8, 6.4, 3.2, 14, 60),
             (4, 3.7, 7.4, 8, 4, 18, 80), (5, 4.6, 9.2, 10, 4, 22, 100), (6.3, 5.9, 11.8, 12.6, 4, 30, 100)]
    data = [(d0, d, c, b, a, length) for d0, d, c, b, a, low, high in sizes
            for length in between([6, 8, 10, 12, 14, 18, 20, 22, 25, 28, 32, 36, 40, 50, 60, 80, 100],
                                  low, high)]
    return Table("pins/iso1234", "ISO 1234", "ISO 1234 - {d0} x {L}", "Splint", "Split pin",
                 fields("""
        d0 | Lochdurchmesser | Hole diameter | key
        d | Schaftdurchmesser | Shank diameter
        c | Ösenbreite | Width of the eye
        b | Ösenlänge | Length of the eye
        a | Überstand | Extension of the long leg
        L | Länge | Length | key
        """), rows("d0 d c b a L", data), DATE)


def clevis(name, norm, title, english, with_head):
    sizes = [(5, 8, 1.6, 1.2, 10, 50), (6, 10, 2, 1.6, 12, 60), (8, 14, 3, 2, 16, 80),
             (10, 18, 4, 3.2, 20, 100), (12, 20, 4, 3.2, 24, 100), (16, 25, 4.5, 4, 32, 100)]
    lengths = [10, 12, 14, 16, 18, 20, 24, 28, 32, 40, 50, 60, 70, 80, 90, 100]
    head = fields("""
        dk | Kopfdurchmesser | Head diameter
        k | Kopfhöhe | Head height
        """) if with_head else []
    names = "d dk k d1 L" if with_head else "d d1 L"
    data = [(d, *((dk, k) if with_head else ()), hole, listed(between(lengths, low, high)))
            for d, dk, k, hole, low, high in sizes]
    body = fields("""
        d | Durchmesser h11 | Diameter h11 | key
        d1 | Splintloch | Hole for the split pin
        L | Länge | Length | range
        """)
    return Table(f"pins/{name}", norm, norm + " - {d} x {L}", title, english,
                 body[:1] + head + body[1:], rows(names, data), DATE)


def din471():
    sizes = [(10, 1, 9.3, 9.6, 1.1), (12, 1, 11, 11.5, 1.1), (14, 1, 12.9, 13.4, 1.1),
             (15, 1, 13.8, 14.3, 1.1), (16, 1, 14.7, 15.2, 1.1), (17, 1, 15.7, 16.2, 1.1),
             (18, 1.2, 16.5, 17, 1.3), (20, 1.2, 18.5, 19, 1.3), (22, 1.2, 20.5, 21, 1.3),
             (24, 1.2, 22.2, 22.9, 1.3), (25, 1.2, 23.2, 23.9, 1.3), (26, 1.2, 24.2, 24.9, 1.3),
             (28, 1.5, 25.9, 26.6, 1.6), (30, 1.5, 27.9, 28.6, 1.6), (32, 1.5, 29.6, 30.3, 1.6),
             (35, 1.5, 32.2, 33, 1.6), (36, 1.75, 33.2, 34, 1.85), (38, 1.75, 35.2, 36, 1.85),
             (40, 1.75, 36.5, 37.5, 1.85), (42, 1.75, 38.5, 39.5, 1.85), (45, 1.75, 41.5, 42.5, 1.85),
             (48, 1.75, 44.5, 45.5, 1.85), (50, 2, 45.8, 47, 2.15), (55, 2, 50.8, 52, 2.15),
             (60, 2, 55.8, 57, 2.15), (65, 2.5, 60.8, 62, 2.65), (70, 2.5, 65.5, 67, 2.65),
             (75, 2.5, 70.5, 72, 2.65), (80, 2.5, 74.5, 76.5, 2.65), (85, 3, 79.5, 81.5, 3.15),
             (90, 3, 84.5, 86.5, 3.15), (100, 3, 94.5, 96.5, 3.15)]
    data = [(100 + n, *size) for n, size in enumerate(sizes)]
    return Table("retaining-rings/din471", "DIN 471", "DIN 471 - {d1} x {s}",
                 "Sicherungsring für Wellen", "Retaining ring for shafts", fields("""
        Satz | Satznummer | Record number | id hidden
        d1 | Wellendurchmesser | Shaft diameter | key
        s | Ringdicke | Thickness of the ring
        d3 | Innendurchmesser, ungespannt | Inner diameter, relaxed
        d2 | Nutdurchmesser | Groove diameter
        m | Nutbreite | Groove width
        """), rows("Satz d1 s d3 d2 m", data), DATE)


def din472():
    sizes = [(10, 1, 10.8, 10.4, 1.1), (12, 1, 13, 12.5, 1.1), (14, 1, 15.1, 14.6, 1.1),
             (15, 1, 16.2, 15.7, 1.1), (16, 1, 17.3, 16.8, 1.1), (18, 1, 19.5, 19, 1.1),
             (19, 1, 20.5, 20, 1.1), (20, 1, 21.5, 21, 1.1), (22, 1, 23.5, 23, 1.1),
             (24, 1.2, 25.9, 25.2, 1.3), (25, 1.2, 26.9, 26.2, 1.3), (26, 1.2, 27.9, 27.2, 1.3),
             (28, 1.2, 30.1, 29.4, 1.3), (30, 1.2, 32.1, 31.4, 1.3), (32, 1.2, 34.4, 33.7, 1.3),
             (35, 1.5, 37.8, 37, 1.6), (40, 1.75, 43.5, 42.5, 1.85), (42, 1.75, 45.5, 44.5, 1.85),
             (45, 1.75, 48.5, 47.5, 1.85), (47, 1.75, 50.5, 49.5, 1.85), (50, 2, 54.2, 53, 2.15),
             (52, 2, 56.2, 55, 2.15), (55, 2, 59.2, 58, 2.15), (60, 2, 64.2, 63, 2.15),
             (62, 2, 66.2, 65, 2.15), (65, 2.5, 69.2, 68, 2.65), (68, 2.5, 72.5, 71, 2.65),
             (70, 2.5, 74.5, 73, 2.65), (72, 2.5, 76.5, 75, 2.65), (75, 2.5, 79.5, 78, 2.65),
             (80, 2.5, 85.5, 83.5, 2.65), (85, 3, 90.5, 88.5, 3.15)]
    return Table("retaining-rings/din472", "DIN 472", "DIN 472 - {d1} x {s}",
                 "Sicherungsring für Bohrungen", "Retaining ring for bores", fields("""
        d1 | Bohrungsdurchmesser | Bore diameter | key
        s | Ringdicke | Thickness of the ring
        d3 | Außendurchmesser, ungespannt | Outer diameter, relaxed
        d2 | Nutdurchmesser | Groove diameter
        m | Nutbreite | Groove width
        """), rows("d1 s d3 d2 m", sizes), DATE)


def din6799():
    sizes = [(1.2, 1.4, 2, 0.3, 3.25), (1.5, 2, 2.5, 0.4, 4.25), (1.9, 2.5, 3, 0.5, 4.8),
             (2.3, 3, 4, 0.6, 6.3), (3.2, 4, 5, 0.6, 7.3), (4, 5, 7, 0.7, 9.3), (5, 6, 8, 0.7, 11.3),
             (6, 7, 9, 0.7, 12.3), (7, 8, 11, 0.9, 14.3), (8, 9, 12, 1, 16.3), (9, 10, 14, 1.1, 18.8),
             (10, 11, 15, 1.2, 20.4), (12, 13, 18, 1.3, 23.4), (15, 16, 24, 1.5, 29.4)]
    return Table("retaining-rings/din6799", "DIN 6799", "DIN 6799 - {d2}",
                 "Sicherungsscheibe", "Retaining washer for shafts", fields("""
        d2 | Nutdurchmesser | Groove diameter | key
        von | Wellendurchmesser von | Shaft diameter from
        bis | Wellendurchmesser bis | Shaft diameter to
        s | Scheibendicke | Thickness of the washer
        d3 | Außendurchmesser, gespannt | Outer diameter, mounted
        """), rows("d2 von bis s d3", sizes), DATE)


KEY_LENGTHS = [6, 8, 10, 12, 14, 16, 18, 20, 22, 25, 28, 32, 36, 40, 45, 50, 56, 63, 70, 80, 90, 100,
               110, 125, 140, 160, 180, 200, 220, 250, 280, 320, 360, 400]


def din6885():
    sizes = [(2, 2, 6, 8, 1.2, 1, 6, 20), (3, 3, 8, 10, 1.8, 1.4, 6, 36), (4, 4, 10, 12, 2.5, 1.8, 8, 45),
             (5, 5, 12, 17, 3, 2.3, 10, 56), (6, 6, 17, 22, 3.5, 2.8, 14, 70),
             (8, 7, 22, 30, 4, 3.3, 18, 90), (10, 8, 30, 38, 5, 3.3, 22, 110),
             (12, 8, 38, 44, 5, 3.3, 28, 140), (14, 9, 44, 50, 5.5, 3.8, 36, 160),
             (16, 10, 50, 58, 6, 4.3, 45, 180), (18, 11, 58, 65, 7, 4.4, 50, 200),
             (20, 12, 65, 75, 7.5, 4.9, 56, 220), (22, 14, 75, 85, 9, 5.4, 63, 250),
             (25, 14, 85, 95, 9, 5.4, 70, 280), (28, 16, 95, 110, 10, 6.4, 80, 320),
             (32, 18, 110, 130, 11, 7.4, 90, 360)]
    data = [(form, b, h, d1, d2, t1, t2, listed(between(KEY_LENGTHS, low, high)))
            for form in "AB" for b, h, d1, d2, t1, t2, low, high in sizes]
    return Table("keys/din6885", "DIN 6885", "DIN 6885 - {Form} {b} x {h} x {L}", "Passfeder",
                 "Parallel key", fields("""
        Form | Form (A rund, B gerade) | Form (A round, B square ends) | text key
        b | Breite | Width | key
        h | Höhe | Height | key
        von | Wellendurchmesser von | Shaft diameter from
        bis | Wellendurchmesser bis | Shaft diameter to
        t1 | Nuttiefe Welle | Depth in the shaft
        t2 | Nuttiefe Nabe | Depth in the hub
        L | Länge | Length | range
        """), rows("Form b h von bis t1 t2 L", data), DATE)


def din6888():
    sizes = [(2, 2.6, 7, 6.76), (2.5, 3.7, 10, 9.66), (3, 3.7, 10, 9.66), (3, 5, 13, 12.65),
             (3, 6.5, 16, 15.72), (4, 5, 13, 12.65), (4, 6.5, 16, 15.72), (4, 7.5, 19, 18.57),
             (5, 6.5, 16, 15.72), (5, 7.5, 19, 18.57), (5, 9, 22, 21.63), (6, 7.5, 19, 18.57),
             (6, 9, 22, 21.63), (6, 11, 28, 27.35), (8, 9, 22, 21.63), (8, 11, 28, 27.35),
             (8, 13, 32, 31.43), (10, 11, 28, 27.35), (10, 13, 32, 31.43), (10, 16, 45, 43.08)]
    return Table("keys/din6888", "DIN 6888", "DIN 6888 - {b} x {h}", "Scheibenfeder",
                 "Woodruff key", fields("""
        b | Breite | Width | key
        h | Höhe | Height | key
        d2 | Scheibendurchmesser | Diameter of the disc
        L | Länge | Length
        """), rows("b h d2 L", sizes), DATE)


def din2093():
    stiff = [(8, 4.2, 0.4, 0.2), (10, 5.2, 0.5, 0.25), (12.5, 6.2, 0.7, 0.3), (14, 7.2, 0.8, 0.3),
             (16, 8.2, 0.9, 0.35), (18, 9.2, 1, 0.4), (20, 10.2, 1.1, 0.45), (22.5, 11.2, 1.25, 0.5),
             (25, 12.2, 1.5, 0.55), (28, 14.2, 1.5, 0.65), (31.5, 16.3, 1.75, 0.7),
             (35.5, 18.3, 2, 0.8), (40, 20.4, 2.25, 0.9), (45, 22.4, 2.5, 1), (50, 25.4, 3, 1.1),
             (56, 28.5, 3, 1.3), (63, 31, 3.5, 1.4), (71, 36, 4, 1.6), (80, 41, 5, 1.7)]
    soft = [(8, 4.2, 0.3, 0.25), (10, 5.2, 0.4, 0.3), (12.5, 6.2, 0.5, 0.35), (14, 7.2, 0.5, 0.4),
            (16, 8.2, 0.6, 0.45), (18, 9.2, 0.7, 0.5), (20, 10.2, 0.8, 0.55), (22.5, 11.2, 0.8, 0.65),
            (25, 12.2, 0.9, 0.7), (28, 14.2, 1, 0.8), (31.5, 16.3, 1.25, 0.9), (35.5, 18.3, 1.25, 1),
            (40, 20.4, 1.5, 1.15), (45, 22.4, 1.75, 1.3), (50, 25.4, 2, 1.4)]
    data = [(series, De, Di, t, h0, round(t + h0, 2)) for series, sizes in (("A", stiff), ("B", soft))
            for De, Di, t, h0 in sizes]
    return Table("springs/din2093", "DIN 2093", "DIN 2093 - {Reihe} {De}", "Tellerfeder",
                 "Disc spring", fields("""
        Reihe | Reihe | Series | text key
        De | Außendurchmesser | Outer diameter | key
        Di | Innendurchmesser | Inner diameter
        t | Dicke | Thickness
        h0 | Federweg bis zur Planlage | Deflection to the flat position
        l0 | Bauhöhe | Free height
        """), rows("Reihe De Di t h0 l0", data), DATE)


def din2098():
    shear = 81500  # N/mm2, patented drawn wire; rate R = G d^4 / (8 n Dm^3)
    sizes = [(0.5, 4), (0.5, 6.3), (0.8, 6.3), (0.8, 8), (1, 8), (1, 10), (1.25, 10), (1.25, 12.5),
             (1.6, 12.5), (1.6, 16), (2, 16), (2, 20), (2.5, 20), (2.5, 25), (3.2, 25), (3.2, 32)]
    data = [(d, Dm, n, round(1.02 * (n + 1.5) * d + n * 0.35 * Dm, 1),
             round(shear * d ** 4 / (8 * n * Dm ** 3), 2))
            for d, Dm in sizes for n in (3.5, 5.5, 8.5, 12.5)]
    return Table("springs/din2098", "DIN 2098", "DIN 2098 - {d} x {Dm} x {l0}", "Druckfeder",
                 "Compression spring", fields("""
        d | Drahtdurchmesser | Wire diameter | key
        Dm | Mittlerer Windungsdurchmesser | Mean coil diameter | key
        n | Federnde Windungen | Active coils | key bare
        l0 | Ungespannte Länge | Free length
        R | Federrate in N/mm | Spring rate in N/mm | bare
        """), rows("d Dm n l0 R", data), DATE)


def tables():
    return [iso8734(), iso2338(), iso8752(), iso1234(),
            clevis("iso2340", "ISO 2340", "Bolzen ohne Kopf", "Clevis pin without head", False),
            clevis("iso2341", "ISO 2341", "Bolzen mit Kopf", "Clevis pin with head", True),
            din471(), din472(), din6799(), din6885(), din6888(), din2093(), din2098()]
