"""ZIP files that are the same bytes whenever they are made of the same files."""

import pathlib
import zipfile


def write_archive(path: pathlib.Path, folder: str, files: dict[str, bytes]) -> None:
    """Writes the files into a folder, in the order of their names, all of the same date and rights."""
    unfinished = path.with_suffix(".unfinished")
    with zipfile.ZipFile(unfinished, "w") as archive:
        for name in sorted(files):
            entry = zipfile.ZipInfo(f"{folder}/{name}")
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # Unix, wherever it is made
            entry.external_attr = 0o100644 << 16
            archive.writestr(entry, files[name], compresslevel=9)
    unfinished.replace(path)
