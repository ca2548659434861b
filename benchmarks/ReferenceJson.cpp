#include "ReferenceJson.h"

#include "MappedFile.h"

#include <cstdio>
#include <memory>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <stdexcept>

namespace velkbench {

namespace {

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

void writeText(Writer &writer, const char *key, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    writer.Key(key);
    writer.String(utf8.constData(), rapidjson::SizeType(utf8.size()));
}

void writeLines(Writer &writer, const PrjMappingTargetC &target)
{
    writer.Key("lines");
    writer.StartArray();
    for (const auto &line : target.lines()) {
        writer.StartArray();
        writer.Int(line.sourceLine());
        writer.Int(line.targetLine());
        writer.Int(line.state());
        if (line.extended()) {
            const QByteArray utf8 = line.extended()->text.toUtf8();
            writer.String(utf8.constData(), rapidjson::SizeType(utf8.size()));
        }
        writer.EndArray();
    }
    writer.EndArray();
}

void writeMapping(Writer &writer, const PrjMappingC &mapping)
{
    writer.StartObject();
    writeText(writer, "sourcePath", mapping.getSourcePath());
    writeText(writer, "sourceVersion", mapping.getSourceVersion());
    writer.Key("state");
    writer.Int(int(mapping.getMappingState()));
    writer.Key("targets");
    writer.StartArray();
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        writer.StartObject();
        writeText(writer, "path", target.getTargetPath());
        writeText(writer, "version", target.getTargetVersion());
        writeLines(writer, target);
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
}

struct Counter : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Counter>
{
    size_t values = 0;
    qint64 sum = 0;

    bool Default()
    {
        ++values;
        return true;
    }
    bool Int(int number)
    {
        sum += number;
        return Default();
    }
    bool Uint(unsigned number)
    {
        sum += number;
        return Default();
    }
    bool String(const char *, rapidjson::SizeType length, bool)
    {
        sum += length;
        return Default();
    }
};

} // namespace

void writeWithRapidJson(const ReleaseMappingC &release, const std::filesystem::path &file)
{
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    writer.StartObject();
    writer.Key(release.getSourceDate().toUtf8().constData());
    writer.StartObject();
    writeText(writer, "sourceDate", release.getSourceDate());
    writeText(writer, "targetDate", release.getTargetDate());
    writer.Key("mappings");
    writer.StartArray();
    for (const PrjMappingC &mapping : release.getMappingList())
        writeMapping(writer, mapping);
    writer.EndArray();
    writer.EndObject();
    writer.EndObject();
    const std::unique_ptr<FILE, int (*)(FILE *)> out(fopen(file.c_str(), "wb"), fclose);
    if (!out || fwrite(buffer.GetString(), 1, buffer.GetSize(), out.get()) != buffer.GetSize())
        throw std::runtime_error("cannot write " + file.string());
}

size_t readWithRapidJson(const std::filesystem::path &file)
{
    const MappedFile mapped(file);
    rapidjson::MemoryStream stream(mapped.bytes().data(), mapped.bytes().size());
    Counter counter;
    rapidjson::Reader reader;
    if (!reader.Parse(stream, counter) || counter.sum == 0)
        throw std::runtime_error("no JSON in " + file.string());
    return counter.values;
}

} // namespace velkbench
