#include "model/DemoDocument.h"
#include "model/ProjectFile.h"
#include "model/propertylist/BinaryReader.h"
#include "model/propertylist/PropertyList.h"
#include "model/propertylist/XmlReader.h"

#include <QLocale>
#include <QTextStream>

#include <benchmark/benchmark.h>

namespace {

using velvane::DemoDocument;
using velvane::ProjectFile;
using velvane::PropertyList;
using velvane::Seconds;
using velvane::Step;

constexpr int stepCount = 100'000;

/// A demo as recorded ones are: mostly moves and clicks, with offsets that are all different.
ProjectFile longDemo()
{
    ProjectFile file;
    file.canvasSize = {1280, 800};
    file.startPoint = {640, 400};
    file.steps.reserve(stepCount);
    for (int i = 0; i < stepCount; ++i) {
        const auto kind = velvane::allStepKinds.at(std::size_t(i % 10));
        Step step = Step::withDefaults(kind, file.canvasSize);
        step.point = {double(i * 7 % 1280), double(i * 13 % 800)};
        step.recordedOffset = Seconds(i * 0.7);
        file.steps << step;
    }
    return file;
}

void appendXml(QTextStream &xml, const PropertyList &value)
{
    if (const auto *dictionary = value.as<PropertyList::Dictionary>()) {
        xml << "<dict>\n";
        for (const PropertyList::Entry &entry : *dictionary) {
            xml << "<key>" << entry.key << "</key>\n";
            appendXml(xml, entry.value);
        }
        xml << "</dict>\n";
    } else if (const auto *array = value.as<PropertyList::Array>()) {
        xml << "<array>\n";
        for (const PropertyList &item : *array)
            appendXml(xml, item);
        xml << "</array>\n";
    } else if (const auto *text = value.as<QString>()) {
        xml << "<string>" << *text << "</string>\n";
    } else if (const auto *truth = value.as<bool>()) {
        xml << (*truth ? "<true/>\n" : "<false/>\n");
    } else if (const auto *real = value.as<double>()) {
        xml << "<real>" << QString::number(*real, 'g', QLocale::FloatingPointShortest)
            << "</real>\n";
    } else if (const auto *integer = value.as<qint64>()) {
        xml << "<integer>" << *integer << "</integer>\n";
    }
}

QByteArray xmlOf(const ProjectFile &file)
{
    QByteArray bytes;
    QTextStream xml(&bytes);
    xml << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n";
    appendXml(xml, file.toPropertyList());
    xml << "</plist>\n";
    xml.flush();
    return bytes;
}

void readBinaryPropertyList(benchmark::State &state)
{
    const QByteArray bytes = DemoDocument::contents(longDemo());
    for (auto _ : state)
        benchmark::DoNotOptimize(velvane::BinaryReader::read(bytes));
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void readBinaryDemo(benchmark::State &state)
{
    const QByteArray bytes = DemoDocument::contents(longDemo());
    for (auto _ : state)
        benchmark::DoNotOptimize(DemoDocument::fileOf(bytes));
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void readXmlDemo(benchmark::State &state)
{
    const QByteArray bytes = xmlOf(longDemo());
    for (auto _ : state)
        benchmark::DoNotOptimize(DemoDocument::fileOf(bytes));
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void writeBinaryDemo(benchmark::State &state)
{
    const ProjectFile file = longDemo();
    for (auto _ : state)
        benchmark::DoNotOptimize(DemoDocument::contents(file));
}

BENCHMARK(readBinaryPropertyList)->Unit(benchmark::kMillisecond);
BENCHMARK(readBinaryDemo)->Unit(benchmark::kMillisecond);
BENCHMARK(readXmlDemo)->Unit(benchmark::kMillisecond);
BENCHMARK(writeBinaryDemo)->Unit(benchmark::kMillisecond);

} // namespace
