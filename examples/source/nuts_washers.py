"""Nuts and washers of the first release. Dimensions in millimetres."""

from .model import Table, fields, listed, rows

DATE = "2021-11-30T09:15:00Z"

# size, s, e, m of ISO 4032, m of ISO 4035
HEXAGON = [("M3", 5.5, 6.01, 2.4, 1.8), ("M4", 7, 7.66, 3.2, 2.2), ("M5", 8, 8.79, 4.7, 2.7),
           ("M6", 10, 11.05, 5.2, 3.2), ("M8", 13, 14.38, 6.8, 4), ("M10", 16, 17.77, 8.4, 5),
           ("M12", 18, 20.03, 10.8, 6), ("M16", 24, 26.75, 14.8, 8), ("M20", 30, 32.95, 18, 10),
           ("M24", 36, 39.55, 21.5, 12), ("M30", 46, 50.85, 25.6, 15), ("M36", 55, 60.79, 31, 18)]

NUT = """
        Dia | Nenngröße | Nominal size | text key
        s | Schlüsselweite | Width across flats
        e | Eckenmaß | Width across corners
        m | Mutternhöhe | Height of the nut
        FK | Festigkeitsklasse | Property class | text
        """


def iso4032():
    data = [(d, s, e, m, grade) for d, s, e, m, _ in HEXAGON for grade in ("8", "10")]
    return Table("nuts/iso4032", "ISO 4032", "ISO 4032 - {Dia} - {FK}", "Sechskantmutter Typ 1",
                 "Hexagon nut, style 1", fields(NUT), rows("Dia s e m FK", data), DATE)


def iso4035():
    data = [(d, s, e, m, "04") for d, s, e, _, m in HEXAGON]
    return Table("nuts/iso4035", "ISO 4035", "ISO 4035 - {Dia} - {FK}", "Niedrige Sechskantmutter",
                 "Thin hexagon nut", fields(NUT), rows("Dia s e m FK", data), DATE)


def din985():
    sizes = [("M3", 5.5, 4, 2.4), ("M4", 7, 5, 2.9), ("M5", 8, 5, 3.2), ("M6", 10, 6, 4),
             ("M8", 13, 8, 5.5), ("M10", 17, 10, 6.5), ("M12", 19, 12, 8), ("M16", 24, 16, 10.5),
             ("M20", 30, 20, 14), ("M24", 36, 24, 15)]
    return Table("nuts/din985", "DIN 985", "DIN 985 - {Dia}",
                 "Sechskantmutter mit Klemmteil", "Prevailing torque hexagon nut", fields("""
        Dia | Nenngröße | Nominal size | text key
        s | Schlüsselweite | Width across flats
        h | Gesamthöhe | Overall height
        m | Schlüsselhöhe | Wrenching height
        """), rows("Dia s h m", sizes), DATE)


def din1587():
    sizes = [("M4", 7, 8, 3.2, 6.5), ("M5", 8, 10, 4, 7.5), ("M6", 10, 12, 5, 9.5),
             ("M8", 13, 15, 6.5, 12.5), ("M10", 17, 18, 8, 16), ("M12", 19, 22, 10, 18),
             ("M16", 24, 28, 13, 23), ("M20", 30, 34, 16, 28)]
    return Table("nuts/din1587", "DIN 1587", "DIN 1587 - {Dia}", "Hutmutter, hohe Form",
                 "Domed cap nut", fields("""
        Dia | Nenngröße | Nominal size | text key
        s | Schlüsselweite | Width across flats
        h | Gesamthöhe | Overall height
        m | Schlüsselhöhe | Wrenching height
        dk | Kuppendurchmesser | Diameter of the dome
        """), rows("Dia s h m dk", sizes), DATE)


def din562():
    sizes = [("M2", 4, 1.2), ("M2.5", 5, 1.6), ("M3", 5.5, 1.8), ("M4", 7, 2.2), ("M5", 8, 2.7),
             ("M6", 10, 3.2), ("M8", 13, 4), ("M10", 17, 5)]
    return Table("nuts/din562", "DIN 562", "DIN 562 - {Dia}", "Vierkantmutter, niedrige Form",
                 "Thin square nut", fields("""
        Dia | Nenngröße | Nominal size | text key
        s | Schlüsselweite | Width across flats
        m | Mutternhöhe | Height of the nut
        """), rows("Dia s m", sizes), DATE)


def din981():
    diameters = [10, 12, 15, 17, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80, 85, 90, 95, 100]
    pitches = [0.75] + [1] * 4 + [1.5] * 6 + [2] * 10
    outer = [18, 22, 25, 28, 32, 38, 45, 52, 58, 65, 70, 75, 80, 85, 92, 98, 105, 110, 120, 125, 130]
    width = [4, 4, 5, 5, 6, 7, 7, 8, 9, 10, 11, 11, 11, 12, 12, 13, 15, 16, 16, 17, 18]
    slots = [3, 3, 4, 4, 4, 5, 5, 5, 6, 6, 6, 7, 7, 7, 8, 8, 8, 8, 10, 10, 10]
    data = [(f"KM{i}", f"M{d}x{p:g}", *rest)
            for i, (d, p, *rest) in enumerate(zip(diameters, pitches, outer, width, slots))]
    return Table("nuts/din981", "DIN 981", "DIN 981 - {Kz}", "Nutmutter", "Lock nut with slots",
                 fields("""
        Kz | Kurzzeichen | Symbol | text key
        G | Gewinde | Thread | text
        d2 | Außendurchmesser | Outer diameter
        B | Breite | Width
        b | Nutbreite | Slot width
        """), rows("Kz G d2 B b", data), DATE)


WASHER = """
        Nenn | Nenngröße | Nominal size | key
        d1 | Innendurchmesser | Inner diameter
        d2 | Außendurchmesser | Outer diameter
        h | Dicke | Thickness
        """


def din125():
    sizes = [(3, 3.2, 7, 0.5), (4, 4.3, 9, 0.8), (5, 5.3, 10, 1), (6, 6.4, 12, 1.6),
             (8, 8.4, 16, 1.6), (10, 10.5, 20, 2), (12, 13, 24, 2.5), (14, 15, 28, 2.5),
             (16, 17, 30, 3), (18, 19, 34, 3), (20, 21, 37, 3), (22, 23, 39, 3), (24, 25, 44, 4),
             (27, 28, 50, 4), (30, 31, 56, 4), (36, 37, 66, 5)]
    data = [(form, *size) for form in "AB" for size in sizes if form == "A" or size[0] >= 5]
    head = "        Form | Form (B mit Fase) | Form (B is chamfered) | text key\n"
    return Table("washers/din125", "DIN 125", "DIN 125 - {Form} {d1}", "Scheibe, normale Reihe",
                 "Plain washer, normal series", fields(head + WASHER.strip("\n")),
                 rows("Form Nenn d1 d2 h", data), DATE)


def din9021():
    sizes = [(3, 3.2, 9, 0.8), (4, 4.3, 12, 1), (5, 5.3, 15, 1.2), (6, 6.4, 18, 1.6),
             (8, 8.4, 24, 2), (10, 10.5, 30, 2.5), (12, 13, 37, 3), (14, 15, 44, 3),
             (16, 17, 50, 3), (20, 22, 60, 4)]
    return Table("washers/din9021", "DIN 9021", "DIN 9021 - {d1}", "Scheibe, große Reihe",
                 "Plain washer, large series", fields(WASHER), rows("Nenn d1 d2 h", sizes), DATE)


def din127():
    sizes = [(3, 3.1, 6.2, 1.3, 0.8), (4, 4.1, 7.6, 1.5, 0.9), (5, 5.1, 9.2, 1.8, 1.2),
             (6, 6.1, 11.8, 2.5, 1.6), (8, 8.1, 14.8, 3, 2), (10, 10.2, 18.1, 3.5, 2.2),
             (12, 12.2, 21.1, 4, 2.5), (16, 16.2, 27.4, 5, 3.5), (20, 20.2, 33.6, 6, 4),
             (24, 24.5, 40, 7, 5)]
    data = [(form, *size) for form in "AB" for size in sizes]
    return Table("washers/din127", "DIN 127", "DIN 127 - {Form} {Nenn}", "Federring",
                 "Spring lock washer", fields("""
        Form | Form (A aufgebogen, B glatt) | Form (A bent ends, B plain) | text key
        Nenn | Nenngröße | Nominal size | key
        d1 | Innendurchmesser | Inner diameter
        d2 | Außendurchmesser | Outer diameter
        b | Querschnittsbreite | Width of the section
        s | Querschnittsdicke | Thickness of the section
        """), rows("Form Nenn d1 d2 b s", data), DATE)


def din6796():
    sizes = [(3, 3.2, 7, 0.85, 0.6), (4, 4.3, 9, 1.3, 1), (5, 5.3, 11, 1.55, 1.2),
             (6, 6.4, 14, 2, 1.5), (8, 8.4, 18, 2.6, 2), (10, 10.5, 23, 3.2, 2.5),
             (12, 13, 29, 3.95, 3), (16, 17, 39, 5.25, 4), (20, 21, 45, 6.4, 5), (24, 25, 56, 7.75, 6)]
    return Table("washers/din6796", "DIN 6796", "DIN 6796 - {Nenn}", "Spannscheibe",
                 "Conical spring washer", fields("""
        Nenn | Nenngröße | Nominal size | key
        d1 | Innendurchmesser | Inner diameter
        d2 | Außendurchmesser | Outer diameter
        h | Höhe, unbelastet | Free height
        s | Blechdicke | Sheet thickness
        """), rows("Nenn d1 d2 h s", sizes), DATE)


def din988():
    pairs = [(3, 6), (4, 8), (5, 10), (6, 12), (7, 13), (8, 14), (9, 15), (10, 16), (11, 17),
             (12, 18), (13, 19), (14, 20), (15, 21), (16, 22), (17, 24), (18, 25), (19, 26),
             (20, 28), (22, 30), (22, 32), (25, 35), (25, 36), (26, 37), (28, 40), (30, 42),
             (32, 45), (35, 45), (36, 45), (37, 47), (40, 50), (42, 52), (45, 55), (45, 56),
             (48, 60), (50, 62), (50, 63)]
    thickness = [0.1, 0.15, 0.2, 0.25, 0.3, 0.5, 1, 1.1, 1.2]
    data = [(d, D, listed(thickness if d < 20 else thickness + [1.5, 2])) for d, D in pairs]
    return Table("washers/din988", "DIN 988", "DIN 988 - {d1} x {d2} x {s}", "Passscheibe",
                 "Shim ring", fields("""
        d1 | Innendurchmesser | Inner diameter | key
        d2 | Außendurchmesser | Outer diameter | key
        s | Dicke | Thickness | range
        """), rows("d1 d2 s", data), DATE)


def tables():
    return [iso4032(), iso4035(), din985(), din1587(), din562(), din981(), din125(), din9021(),
            din127(), din6796(), din988()]
