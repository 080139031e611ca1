"""For the toolkit's loader of forms: which module has the components. Forms name them, and
the enumerations' values, by the library's namespace."""

pluginType = MODULE  # noqa: F821 - the loader gives it


def moduleInformation():
    components = ("ORVListView", "ORVTreeview", "ORVDataCombo", "ORVRichText")
    return "orvtlistview", ("ORVTListview", *(f"ORVTListview.{name}" for name in components))
