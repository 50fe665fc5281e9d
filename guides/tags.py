"""Tags in WeasyPrint's PDF files: what a screen reader needs to read a guide.

WeasyPrint 57 tags text, but its pictures come out without a tag or an alternative text, its page numbers and frames are
read like text, and its tree starts anew on every page. This registers a variant of our own, "guide": one structure
tree in the order of the text, with a Figure for each picture that has an alternative text. All else on the pages is
an Artifact, which readers pass over."""

import pydyf
from weasyprint import draw
from weasyprint.formatting_structure import boxes
from weasyprint.pdf import VARIANTS
from weasyprint.pdf.metadata import add_metadata
from weasyprint.pdf.stream import Stream

TAGS = {"h1": "H1", "h2": "H2", "h3": "H3", "p": "P", "ol": "L", "ul": "L", "li": "LI", "table": "Table",
        "thead": "THead", "tbody": "TBody", "tr": "TR", "th": "TH", "td": "TD", "img": "Figure", "a": "Link",
        "div": "Div", "section": "Sect"}
WITHOUT_CONTENT = {"L", "Table", "THead", "TBody", "TR", "Div", "Sect"}  # what is drawn for these is decoration


_parents = {}  # element: the one around it; WeasyPrint's own elements don't know it


def _own_element(box):
    """The element that the box draws, without what is for looks only; the element of a span is its paragraph."""
    element = box.element
    while element is not None and element.tag not in TAGS:
        element = _parents.get(element)
    if element is None or TAGS[element.tag] in WITHOUT_CONTENT or (element.tag == "img" and not element.get("alt")):
        return None
    return element


def learn(root):
    """Makes the document's elements known. Call it before the document is drawn."""
    _parents.clear()
    _parents.update((child, parent) for parent in root.iter() for child in parent)


# What a run of drawing belongs to: an element, and whether it is the number of a list's item.
ARTIFACT = (None, False)


def _content(box):
    element = _own_element(box)
    is_number = str(box.element_tag).endswith(("::marker", "::before"))
    return ARTIFACT if element is None else (element, is_number)


def _begin(stream, box, mcid=False, tag=None):
    content = _content(box)
    _turn(stream, content)
    stream.open_content.append(content)
    if tag == "Link":
        stream.link_boxes[content[0]] = box


def _end(stream):
    stream.open_content.pop()
    _turn(stream, stream.open_content[-1] if stream.open_content else None)


def _turn(stream, content):
    """Runs of drawing follow one another and never overlap: a block inside another one interrupts its run."""
    if not hasattr(stream, "open_content"):
        stream.open_content, stream.link_boxes, stream.current = [], {}, None
    if content == stream.current:
        return
    if stream.current is not None:
        pydyf.Stream.end_marked_content(stream)
    stream.current = content
    if content == ARTIFACT:
        pydyf.Stream.begin_marked_content(stream, "Artifact")
    elif content is not None:
        pydyf.Stream.begin_marked_content(stream, TAGS[content[0].tag], pydyf.Dictionary({"MCID": len(stream.marked)}))
        stream.marked.append(content)


def _draw_picture(stream, box, plain=draw.draw_replacedbox):
    stream.begin_marked_content(box)
    plain(stream, box)
    stream.end_marked_content()


_ends_of_lines = set()  # the last text boxes of lines, which are still to be drawn


def _draw_line(stream, page, box, *more, plain=draw.draw_inline_level):
    if isinstance(box, boxes.LineBox):
        last = [part for part in box.descendants() if isinstance(part, boxes.TextBox)][-1:]
        _ends_of_lines.update(id(part) for part in last)
    plain(stream, page, box, *more)


def _draw_text(stream, box, *more, plain=draw.draw_text):
    """Draws the space at the end of a line too, which is lost at the break: readers would join two words."""
    if id(box) in _ends_of_lines:
        _ends_of_lines.remove(id(box))
        box.pango_layout.reactivate(box.style)
        box.pango_layout.set_text(box.text + " ")
    plain(stream, box, *more)


class _Tree:
    """The structure tree, built from the runs on the pages."""

    def __init__(self, pdf, root):
        self._pdf = pdf
        self._order = {element: number for number, element in enumerate(root.iter())}
        self._made = {}
        self._kids = {}  # of each structure element, by its number: (place in the text, what stands there)
        self.top = self._new("Document", None)

    def _new(self, tag, parent, place=0, **more):
        made = pydyf.Dictionary({"Type": "/StructElem", "S": f"/{tag}", **more})
        self._pdf.add_object(made)
        self._kids[made.number] = []
        if parent is not None:
            made["P"] = parent.reference
            self._kids[parent.number].append((place, made.reference))
        return made

    def element(self, element, part=None):
        """The structure element for one of the text; `part` is "Lbl" or "LBody" of a list item."""
        if element is None or element.tag in ("html", "body"):
            return self.top
        if element.tag not in TAGS:
            return self.element(_parents.get(element), part)
        if (element, part) not in self._made:
            self._made[element, part] = self._make(element, part)
        return self._made[element, part]

    def _make(self, element, part):
        if part:
            return self._new(part, self.element(element), -2 if part == "Lbl" else -1)
        around = _parents.get(element)
        while around is not None and around.tag not in TAGS:
            around = _parents.get(around)
        parent = self.element(around, "LBody" if around is not None and around.tag == "li" else None)
        more = {}
        if element.tag == "img":
            more["Alt"] = pydyf.String(element.get("alt"))
        if element.tag == "th":
            more["A"] = pydyf.Dictionary({"O": "/Table", "Scope": "/Column"})
        return self._new(TAGS[element.tag], parent, self._order[element], **more)

    def add_run(self, page, mcid, content):
        """A run on a page, as a part of its element. Gives the element."""
        element, is_number = content
        part = ("Lbl" if is_number else "LBody") if element.tag == "li" else None
        owner = self.element(element, part)
        place = max([self._order[element], *(place for place, _ in self._kids[owner.number])])
        run = pydyf.Dictionary({"Type": "/MCR", "Pg": page, "MCID": mcid})
        self._kids[owner.number].append((place, run.data.decode("latin-1")))
        return owner

    def add_link(self, owner, page, annotation):
        target = pydyf.Dictionary({"Type": "/OBJR", "Pg": page, "Obj": annotation.reference})
        self._kids[owner.number].append((float("inf"), target.data.decode("latin-1")))

    def close(self):
        """Writes the kids of all elements in the order of the text."""
        for made in [self.top, *self._made.values()]:
            made["K"] = pydyf.Array(kid for _, kid in sorted(self._kids[made.number], key=lambda kid: kid[0]))


def _write_structure(pdf, metadata, document, page_streams):
    tree = _Tree(pdf, document._html.etree_element)
    parents, links = [], []
    for number, stream in enumerate(page_streams):
        page = pdf.page_references[number].decode()
        owners = [tree.add_run(page, mcid, content) for mcid, content in enumerate(stream.marked)]
        parents += [number, pydyf.Array(owner.reference for owner in owners)]
        links += [(tree.element(element), page, box.link_annotation) for element, box in stream.link_boxes.items()]
    for number, (owner, page, annotation) in enumerate(links, start=len(page_streams)):
        tree.add_link(owner, page, annotation)
        annotation["StructParent"] = number
        annotation["F"] = 4  # is printed
        parents += [number, owner.reference]
    tree.close()

    parent_tree = pydyf.Dictionary({"Nums": pydyf.Array(parents)})
    pdf.add_object(parent_tree)
    root = pydyf.Dictionary({"Type": "/StructTreeRoot", "ParentTree": parent_tree.reference, "K": tree.top.reference})
    pdf.add_object(root)
    tree.top["P"] = root.reference
    pdf.catalog["StructTreeRoot"] = root.reference
    pdf.catalog["MarkInfo"] = pydyf.Dictionary({"Marked": "true"})
    pdf.catalog["ViewerPreferences"] = pydyf.Dictionary({"DisplayDocTitle": "true"})
    add_metadata(pdf, metadata, "ua", version=1, conformance=None)


Stream.begin_marked_content = _begin
Stream.end_marked_content = _end
draw.draw_replacedbox = _draw_picture
draw.draw_inline_level = _draw_line
draw.draw_text = _draw_text
VARIANTS["guide"] = (_write_structure, {"mark": True})
