"""Both platforms write the same bytes, read each other's documents, and show old ones alike.

mqRecordSet writes a fixed set of records natively and under Wine: each through a stream of the
system (a file; global memory on Windows) and into a document (libgsf; structured storage). All four
copies of a record are compared. Each platform reads both documents. The tool of each platform
shows the documents in examples/documents and rewrites them.
"""

import json

from workshop import Finding, ROOT, demand, demand_none

PLATFORMS = ("linux", "windows")
DOCUMENTS = ROOT / "examples" / "documents"


def write_sets(shop, binaries):
    """The folder that each platform wrote."""
    folders = {}
    for platform in PLATFORMS:
        folders[platform] = shop.fresh_folder(f"records-{platform}")
        shop.start(platform, binaries[platform] / "mqRecordSet", "write",
                   folders[platform].relative_to(ROOT))
    return folders


def compare_files(folders):
    names = {platform: {file.name for file in folder.glob("*.bin")}
             for platform, folder in folders.items()}
    demand(names["linux"] == names["windows"], "the sets have different records")
    demand(len(names["linux"]) > 40, "the set has lost its records")
    different = [name for name in sorted(names["linux"])
                 if len({(folder / name).read_bytes() for folder in folders.values()}) > 1]
    demand_none(different, "records whose bytes differ between the platforms")
    total = sum((folders["linux"] / name).stat().st_size for name in names["linux"])
    return Finding("each record has the same bytes on both platforms, through streams of the system",
                   len(names["linux"]), f"{total} bytes, no difference")


def stored_sizes(listing):
    """Names and sizes out of a listing: "GraphNew, 400 bytes"."""
    lines = [line.split(", ") for line in listing.decode().splitlines() if line.endswith(" bytes")]
    return {name: int(size.removesuffix(" bytes")) for name, size in lines}


def read_crosswise(shop, binaries, folders):
    listings = {}
    for reader in PLATFORMS:
        for writer in PLATFORMS:
            document = folders[writer].relative_to(ROOT) / "records.cfb"
            output = shop.start(reader, binaries[reader] / "mqRecordSet", "read", document)
            listings[reader, writer] = output.replace(b"\r\n", b"\n")
    sizes = {file.stem: file.stat().st_size for file in folders["linux"].glob("*.bin")}
    demand(stored_sizes(listings["linux", "linux"]) == sizes, "a document lacks records of the set")
    demand_none([f"{reader} reads the document of {writer}"
                 for (reader, writer), listing in listings.items()
                 if sorted(listing.split(b"\n\n")) !=
                 sorted(listings["linux", "linux"].split(b"\n\n"))],
                "readings that differ from Linux reading its own document")
    return Finding("each platform reads the documents of both, every member alike",
                   len(sizes) * len(listings), "no difference")


def compare_streams(shop, binaries, folders):
    """The bytes of every stream of both documents, next to those of the files."""
    faults, cases = [], 0
    for writer in PLATFORMS:
        document = folders[writer].relative_to(ROOT) / "records.cfb"
        copies = shop.fresh_folder("streams")
        shop.start("linux", binaries["linux"] / "mqRecordSet", "extract", document,
                   copies.relative_to(ROOT))
        for file in sorted(folders["linux"].glob("*.bin")):
            cases += 1
            copy = copies / file.name
            if not copy.exists() or copy.read_bytes() != file.read_bytes():
                faults.append(f"{file.stem} in the document of {writer}")
    demand_none(faults, "streams that differ from the record")
    return Finding("each stream of a document has the bytes of the record", cases, "no difference")


def command_lines():
    """Everything that the tool shows of the committed documents."""
    for description in sorted(DOCUMENTS.glob("*.json")):
        known = json.loads(description.read_bytes())
        document = (DOCUMENTS / known["document"]).relative_to(ROOT)
        yield ["ls", document]
        yield ["ls", document, "--json"]
        for record in known["records"]:
            verb = [record["kind"].split()[0], f"{document}::{record['stream']}",
                    "--doc-version", known["version"]]
            for options in ([], ["--json"], ["--bytes"], ["--bytes", "--json"]):
                yield verb + options


def show_documents(shop, binaries):
    different, cases = [], 0
    for words in command_lines():
        outputs = [shop.start(platform, binaries[platform] / "mqpost", *words)
                   for platform in PLATFORMS]
        cases += 1
        demand(outputs[0], f"mqpost {words} says nothing")
        if outputs[0] != outputs[1]:
            different.append(" ".join(str(word) for word in words))
    demand_none(different, "command lines whose output differs between the platforms")
    return Finding("the tool shows the committed documents alike on both platforms", cases,
                   "byte for byte")


def convert_documents(shop, binaries):
    """What each platform rewrites the other one shows."""
    different, cases = [], 0
    for description in sorted(DOCUMENTS.glob("*.json")):
        known = json.loads(description.read_bytes())
        shown = set()
        for writer, reader in (PLATFORMS, PLATFORMS[::-1]):
            target = shop.fresh_folder("converted").relative_to(ROOT) / "document.cfb"
            shop.start(writer, binaries[writer] / "mqpost", "convert",
                       (DOCUMENTS / known["document"]).relative_to(ROOT), "-o", target,
                       "--doc-version", known["version"])
            shown.add(b"".join(
                shop.start(reader, binaries[reader] / "mqpost", record["kind"].split()[0],
                           f"{target}::{record['stream']}", "--doc-version", 890110, "--bytes")
                for record in known["records"]))
            cases += 1
        if len(shown) > 1:
            different.append(known["document"])
    demand_none(different, "documents that the platforms rewrite differently")
    return Finding("what one platform rewrites the other shows, alike", cases, "no difference")


def check(shop):
    binaries = {"linux": shop.build("dev", "mqRecordSet", "mqpost"),
                "windows": shop.build("windows", "mqRecordSet", "mqpost")}
    folders = write_sets(shop, binaries)
    return [compare_files(folders), compare_streams(shop, binaries, folders),
            read_crosswise(shop, binaries, folders), show_documents(shop, binaries),
            convert_documents(shop, binaries)]
