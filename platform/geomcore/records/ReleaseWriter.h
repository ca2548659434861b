#pragma once

class JsonWriter;
class ReleaseMappingC;

/// Writes the release as one JSON object in the layout of the mapping file: members in a fixed
/// order, rows of lines in ascending order of their source ids, so the same records give the same
/// bytes. \a headsOnly leaves out "mappings".
void writeRelease(JsonWriter &writer, const ReleaseMappingC &release, bool headsOnly);
