"""An independent reading of a transfer set, by Python's own XML parser: what each listing has to show as JSON."""
import itertools
import xml.etree.ElementTree


class Set:
    """Documents in the order of the views: the main one, then the external files that it names."""

    def __init__(self, directory):
        main = xml.etree.ElementTree.parse(directory / "TASKDATA.XML").getroot()
        files = [reference.get("A") for reference in main.iter("XFR")]
        self.documents = [main, *(xml.etree.ElementTree.parse(directory / f"{name}.XML").getroot() for name in files)]
        lists = [file.get("A") for file in main.iter("AFE") if file.get("D") == "1"]
        self.uuids = {}
        if lists:
            for group in xml.etree.ElementTree.parse(directory / lists[0]).getroot().iter("LGP"):
                if group.get("B") == "1":
                    for link in group.iter("LNK"):
                        self.uuids.setdefault(link.get("A"), link.get("B"))

    def all(self, tag):
        return [element for document in self.documents for element in document.iter(tag)]

    def uuid(self, identifier):
        return self.uuids.get(identifier)

    # ---- One function for each command ----

    def growers(self):
        keys = {"A": "id", "B": "lastName", "C": "firstName", "D": "street", "E": "poBox", "F": "postalCode",
                "G": "city", "H": "state", "I": "country", "J": "phone", "K": "mobile", "L": "fax", "M": "email",
                "P917_customerNumber": "customerNumber", "P917_middleName": "middleName", "P917_comment": "comment",
                "P917_county": "county", "P917_displayName": "displayName"}
        return [texts(grower, keys) | {"uuid": self.uuid(grower.get("A"))} for grower in self.all("CTR")]

    def farms(self):
        keys = {"A": "id", "B": "designator", "C": "street", "D": "poBox", "E": "postalCode", "F": "city",
                "G": "state", "H": "country", "I": "growerIdRef", "P917_county": "county",
                "P917_firstName": "firstName", "P917_middleName": "middleName", "P917_lastName": "lastName",
                "P917_phoneNumber": "phone", "P917_mobileNumber": "mobile", "P917_faxNumber": "fax",
                "P917_Email": "email", "P917_comment": "comment"}
        return [texts(farm, keys) | {"uuid": self.uuid(farm.get("A")), "growerUuid": self.uuid(farm.get("I"))}
                for farm in self.all("FRM")]

    def fields(self):
        keys = {"A": "id", "B": "fieldCode", "C": "designator", "E": "growerIdRef", "F": "farmIdRef",
                "G": "cropTypeIdRef", "H": "cropVarietyIdRef", "I": "fieldIdRef", "P917_state": "state",
                "P917_section": "section", "P917_township": "township", "P917_county": "county",
                "P917_comment": "comment", "P917_crop": "crop"}
        fields = []
        for field in self.all("PFD"):
            lists = {
                "polygons": [self.polygon(polygon) for polygon in field.findall("PLN")],
                "scoutLines": [self.scout_line(line) for line in field.findall("LSG")],
                "scoutPoints": [self.scout_point(point) for point in field.findall("PNT")],
            }
            fields.append(texts(field, keys) | lists | {
                "area": int(field.get("D")),
                "uuid": self.uuid(field.get("A")),
                "growerUuid": self.uuid(field.get("E")),
                "farmUuid": self.uuid(field.get("F")),
                "hasScoutItem": any(lists.values()),
                "guidanceGroups": [self.guidance_group(group) for group in field.findall("GGP")],
            })
        return fields

    def products(self):
        groups = names(self.all("PGP"))
        keys = {"A": "id", "B": "designator", "C": "productGroupIdRef", "D": "valuePresentationIdRef",
                "E": "quantityDdi", "F": "type", "G": "mixtureRecipeQuantity", "H": "densityMassPerVolume",
                "I": "densityMassPerCount", "J": "densityVolumePerCount",
                "P917_ingredientManufacturer": "ingredientManufacturer",
                "P917_ingredientRegistration": "ingredientRegistration",
                "P917_ingredientComposition": "ingredientComposition", "P917_ingredientNotes": "ingredientNotes"}
        numbers = {"mixtureRecipeQuantity", *(key for key in keys.values() if key.startswith("density"))}
        return [
            values(product, keys, numbers) | {
                "quantityDdi": hexadecimal(product.get("E")),
                "uuid": self.uuid(product.get("A")),
                "productGroup": groups.get(product.get("C")),
                "parts": [values(part, {"A": "productIdRef", "B": "quantityValue", "P917_vpn": "valuePresentationIdRef"},
                                 {"quantityValue"}) for part in product.findall("PRN")],
            } for product in self.all("PDT")]

    def crops(self):
        groups = names(self.all("PGP"))
        variety_keys = {"A": "id", "B": "designator", "C": "productIdRef"}
        return [
            values(crop, {"A": "id", "B": "designator", "C": "productGroupIdRef"}) | {
                "uuid": self.uuid(crop.get("A")),
                "productGroup": groups.get(crop.get("C")),
                "varieties": [values(variety, variety_keys) | {"uuid": self.uuid(variety.get("A"))}
                              for variety in crop.findall("CVT")],
            } for crop in self.all("CTP")]

    def tasks(self):
        keys = {"A": "id", "B": "designator", "C": "customerIdRef", "D": "farmIdRef", "E": "fieldIdRef", "G": "status",
                "P007_JobMetaData": "jobMetaData"}
        return [texts(task, keys) | zone_codes(task) | {
            "treatmentZones": len(task.findall("TZN")),
            "uuid": self.uuid(task.get("A")),
        } for task in self.all("TSK")]

    def rx(self):
        return [{
            "taskId": task.get("A"),
            "designator": task.get("B", ""),
            "treatmentZones": [treatment_zone(zone) for zone in task.findall("TZN")],
        } | zone_codes(task) for task in self.all("TSK") if task.find("TZN") is not None]

    def questions(self):
        return [{
            "prompt": question.findtext("P917_Prompt"),
            "replyType": question.get("P917_ReplyType"),
            "required": {None: None, "true": True, "1": True, "false": False, "0": False}[question.get("P917_Required")],
            "reply": question.findtext("P917_Reply"),
            "options": [option.text or "" for option in question.findall("P917_Option")],
            "uuid": question.get("P917_Uuid"),
        } for question in self.all("P917_Question")]

    def devices(self):
        keys = {"A": "id", "B": "designator", "C": "softwareVersion", "D": "clientName", "E": "serialNumber",
                "F": "structureLabel", "G": "localizationLabel"}
        binaries = {"clientName", "structureLabel", "localizationLabel"}
        devices = []
        for device in self.all("DVC"):
            record = values(device, keys)
            record |= {key: hexadecimal(record[key]) for key in binaries}
            devices.append(record | {
                "elements": len(device.findall("DET")),
                "properties": len(device.findall("DPT")),
                "processData": len(device.findall("DPD")),
                "valuePresentations": len(device.findall("DVP")),
                "uuid": self.uuid(device.get("A")),
            })
        return devices

    # ---- Geometry of fields ----

    def polygon(self, polygon):
        rings = [(ring.get("A"), locations(ring)) for ring in polygon.findall("LSG")]
        keys = {"B": "designator", "E": "id", "P007_PolygonMetaData": "metaData"}
        return texts(polygon, keys) | {
            "uuid": self.uuid(polygon.get("E")),
            "type": polygon.get("A"),
            "isOtherType": polygon.get("A") == "8",
            "colour": int(polygon.get("D", 0)),
            "area": float(polygon.get("C", 0)),
            "sprayProperty": polygon.get("P917_SprayProperty"),
            "plantProperty": polygon.get("P917_PlantProperty"),
            "points": [point for _, points in rings for point in points],
            "interiorPoints": [point for kind, points in rings if kind == "2" for point in points],
        }

    def scout_line(self, line):
        return texts(line, {"B": "designator", "F": "id"}) | {
            "uuid": self.uuid(line.get("F")),
            "points": [location(point) | altitude(point, float) for point in line.findall("PNT")],
        }

    def scout_point(self, point):
        return texts(point, {"B": "designator", "G": "id"}) | location(point) | altitude(point, float) | {
            "uuid": self.uuid(point.get("G")),
            "type": point.get("A"),
        }

    def guidance_group(self, group):
        keys = {"A": "id", "B": "designator", "P007_GuidanceGroupMetaData": "metaData"}
        return texts(group, keys) | {
            "uuid": self.uuid(group.get("A")),
            "guidanceLines": [self.guidance_line(pattern, line) for pattern in group.findall("GPN")
                              for line in pattern.findall("LSG") if line.get("A") == "5"],
        }

    def guidance_line(self, pattern, line):
        kind = pattern.get("C")
        points = []
        for point in line.findall("PNT"):
            points.insert(0 if kind == "4" and point.get("A") == "8" else len(points), location(point))
        return texts(pattern, {"A": "id", "B": "designator", "P007_GuidanceMetaData": "metaData"}) | {
            "uuid": self.uuid(pattern.get("A")),
            "type": kind,
            "options": pattern.get("D"),
            "propagationDirection": pattern.get("E"),
            "extension": kind,
            "gnssMethod": pattern.get("I"),
            "radius": int(pattern.get("H", 0)) if kind == "4" else 0,
            "heading": decimal(pattern.get("G", "0")) if kind == "2" else 0.0,
            "points": points,
        }


def texts(element, keys):
    """Attributes as records have them: one that is not there is empty."""
    return {key: element.get(attribute, "") for attribute, key in keys.items()}


def values(element, keys, numbers=()):
    """Attributes as elements have them: one that is not there is null."""
    record = {key: element.get(attribute) for attribute, key in keys.items()}
    return {key: int(value) if key in numbers and value is not None else value for key, value in record.items()}


def names(elements):
    return {element.get("A"): element.get("B") for element in reversed(elements)}


def hexadecimal(text):
    return text and text.strip().upper()


def decimal(text):
    """All digits built up in one double and divided once, as the library has it: Python's own conversion differs in
    the last bit where there are more than 15 digits. Only whole numbers are calculated with, and each is rounded as a
    double would be: the floating-point unit of a 32-bit Python rounds twice."""
    def rounded(number):
        return int(float(number))

    whole, _, fraction = text.strip().lstrip("+-").partition(".")
    value, scale = 0, 1
    for digit in whole + fraction:
        value = rounded(rounded(value * 10) + int(digit))
    for _ in fraction:
        scale = rounded(scale * 10)
    magnitude = (value << 64) / (scale << 64)  # so large that Python divides digit by digit
    return -magnitude if text.strip().startswith("-") else magnitude


def location(point):
    return {"north": decimal(point.get("C")), "east": decimal(point.get("D"))}


def locations(line):
    return [location(point) for point in line.findall("PNT")]


def altitude(point, number):
    return {"altitude": number(point.get("E", 0))}


def zone_codes(task):
    return {
        "defaultTreatmentZoneCode": int(task.get("H", 0)),
        "positionLostTreatmentZoneCode": int(task.get("I", 0)),
        "outOfFieldTreatmentZoneCode": int(task.get("J", 0)),
    }


def treatment_zone(zone):
    rings = []
    for polygon in zone.findall("PLN"):
        for line in polygon.findall("LSG"):
            rings.append({
                "isInterior": line.get("A") == "2",
                "name": "",
                "designator": line.get("B", ""),
                "colour": int(line.get("E", 0)),
                "points": [location(point) | altitude(point, int) for point in line.findall("PNT")],
            })
            rings[0]["name"] = polygon.get("B", "")
    runs = [(tag, list(run)) for tag, run in itertools.groupby(zone, lambda child: child.tag) if tag in ("PLN", "PDV")]
    variables = runs[-1][1] if runs and runs[-1][0] == "PDV" else []
    return {
        "code": int(zone.get("A")),
        "name": zone.get("B", ""),
        "polygons": rings,
        "variables": [{
            "ddi": hexadecimal(variable.get("A")),
            "value": int(variable.get("B")),
            "rxWithoutConversionRate": decimal(variable.get("P917_rxwoconvrate", "0")),
        } | texts(variable, {"C": "productIdRef", "E": "valuePresentationIdRef", "P917_rxmap": "rxMap",
                             "P917_rxcolumn": "rxColumn", "P917_rxunit": "rxUnit"}) for variable in zone.findall("PDV")
                      if variable in variables],
    }


def difference(expected, shown, path=""):
    """Where the first difference is, and what it is; "" when there is none. Comparing large sets by assertEqual
    would print them whole."""
    if type(expected) is type(shown) is dict and expected.keys() == shown.keys():
        pairs = [(key, expected[key], shown[key]) for key in expected]
    elif type(expected) is type(shown) is list and len(expected) == len(shown):
        pairs = [(i, *pair) for i, pair in enumerate(zip(expected, shown))]
    else:
        is_same = type(expected) is type(shown) and expected == shown
        return "" if is_same else f"{path}: {str(expected)[:200]} expected, {str(shown)[:200]} shown"
    return next(filter(None, (difference(*values, f"{path}/{key}") for key, *values in pairs)), "")
