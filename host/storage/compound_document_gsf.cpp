#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-input.h>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-memory.h>
#include <gsf/gsf-output.h>

#include "compound_parts.h"

namespace mqp::host {
namespace {

struct Unreference {
  void operator()(gpointer object) const noexcept { g_object_unref(object); }
};
template <class Object>
using Reference = std::unique_ptr<Object, Unreference>;

/// Collects what libgsf would print, for the error text; other threads print as before.
class QuietLog {
 public:
  QuietLog() {
    static const bool isInstalled = Install();
    static_cast<void>(isInstalled);
    m_outer = std::exchange(s_current, this);
  }
  ~QuietLog() { s_current = m_outer; }
  QuietLog(const QuietLog&) = delete;
  QuietLog& operator=(const QuietLog&) = delete;

  [[nodiscard]] StorageFailure Failure(const std::string& reason) const {
    return StorageFailure(m_text.empty() ? reason : reason + " (" + m_text + ")");
  }

 private:
  static bool Install() {
    constexpr int kLevels = G_LOG_LEVEL_MASK | G_LOG_FLAG_RECURSION;
    for (const char* domain : {"libgsf", "libgsf:msole"}) {
      g_log_set_handler(domain, static_cast<GLogLevelFlags>(kLevels), &Take, nullptr);
    }
    return true;
  }
  static void Take(const gchar* domain, GLogLevelFlags level, const gchar* message, gpointer data) {
    if (s_current == nullptr) {
      g_log_default_handler(domain, level, message, data);
    } else if (s_current->m_text.empty()) {
      s_current->m_text = message;
    }
  }

  static inline thread_local QuietLog* s_current = nullptr;
  std::string m_text;
  QuietLog* m_outer = nullptr;
};

/// The lifetime that `IStream` leaves open.
class GsfStream : public IStream {
 public:
  GsfStream() = default;
  virtual ~GsfStream() = default;
  GsfStream(const GsfStream&) = delete;
  GsfStream& operator=(const GsfStream&) = delete;

 protected:
  static HRESULT Answer(HRESULT result, ULONG* transferred, ULONG count) noexcept {
    if (transferred != nullptr) {
      *transferred = count;
    }
    return result;
  }
};

class InputStream final : public GsfStream {
 public:
  explicit InputStream(Reference<GsfInput> input) : m_input(std::move(input)) {}

  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override {
    const QuietLog log;
    const auto rest = static_cast<guint64>(gsf_input_remaining(m_input.get()));
    const auto count = static_cast<ULONG>(std::min<guint64>(size, rest));
    if (count > 0 &&
        (buffer == nullptr ||
         gsf_input_read(m_input.get(), count, static_cast<guint8*>(buffer)) == nullptr)) {
      return Answer(buffer == nullptr ? E_POINTER : E_FAIL, transferred, 0);
    }
    return Answer(count == size ? S_OK : S_FALSE, transferred, count);
  }
  HRESULT Write(const void*, ULONG, ULONG* transferred) override {
    return Answer(STG_E_ACCESSDENIED, transferred, 0);
  }

 private:
  Reference<GsfInput> m_input;
};

class OutputStream final : public GsfStream {
 public:
  OutputStream(Reference<GsfOutput> output, bool* isFailed)
      : m_output(std::move(output)), m_isFailed(isFailed) {}
  ~OutputStream() override {
    const QuietLog log;
    *m_isFailed = gsf_output_close(m_output.get()) == FALSE || *m_isFailed;
  }

  HRESULT Read(void*, ULONG, ULONG* transferred) override {
    return Answer(STG_E_ACCESSDENIED, transferred, 0);
  }
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override {
    const QuietLog log;
    if (size == 0) {
      return Answer(S_OK, transferred, 0);
    }
    if (buffer == nullptr) {
      return Answer(E_POINTER, transferred, 0);
    }
    if (gsf_output_write(m_output.get(), size, static_cast<const guint8*>(buffer)) == FALSE) {
      *m_isFailed = true;
      return Answer(E_FAIL, transferred, 0);
    }
    return Answer(S_OK, transferred, size);
  }

 private:
  Reference<GsfOutput> m_output;
  bool* m_isFailed;
};

class GsfReader final : public StorageReader {
 public:
  explicit GsfReader(std::vector<std::byte> file) : m_file(std::move(file)) {
    const QuietLog log;
    const Reference<GsfInput> input(
        gsf_input_memory_new(reinterpret_cast<const guint8*>(m_file.data()),
                             static_cast<gsf_off_t>(m_file.size()), FALSE));
    GError* error = nullptr;
    m_root.reset(gsf_infile_msole_new(input.get(), &error));
    if (m_root == nullptr) {
      const std::string reason = error == nullptr ? "it cannot be opened" : error->message;
      g_clear_error(&error);
      throw log.Failure(reason);
    }
  }

  DocumentStream OpenStream(std::span<const std::string> path) override {
    const QuietLog log;
    Reference<GsfInput> element(GSF_INPUT(g_object_ref(m_root.get())));
    for (const std::string& name : path) {
      element = Child(GSF_INFILE(element.get()), name);
      if (element == nullptr) {
        throw log.Failure("\"" + name + "\" cannot be opened");
      }
    }
    return DocumentStream(new InputStream(std::move(element)), StreamCloser());
  }

 private:
  /// By the exact name; libgsf's own search folds letter case.
  static Reference<GsfInput> Child(GsfInfile* storage, const std::string& name) {
    for (int index = 0; index < gsf_infile_num_children(storage); ++index) {
      const char* candidate = gsf_infile_name_by_index(storage, index);
      if (candidate != nullptr && candidate == name) {
        return Reference<GsfInput>(gsf_infile_child_by_index(storage, index));
      }
    }
    return nullptr;
  }

  std::vector<std::byte> m_file;
  Reference<GsfInfile> m_root;
};

class GsfBuilder final : public StorageBuilder {
 public:
  explicit GsfBuilder(const ClassId& rootClassId) : m_sink(gsf_output_memory_new()) {
    const QuietLog log;
    AdoptStorage("", gsf_outfile_msole_new(m_sink.get()), rootClassId);
  }
  ~GsfBuilder() override {
    const QuietLog log;
    Close();  // libgsf complains of what is freed before it is closed
  }
  GsfBuilder(const GsfBuilder&) = delete;
  GsfBuilder& operator=(const GsfBuilder&) = delete;

  void AddStorage(std::span<const std::string> path, const ClassId& classId) override {
    const QuietLog log;
    AdoptStorage(JoinPath(path), GSF_OUTFILE(CreateChild(path, TRUE).release()), classId);
  }

  DocumentStream CreateStream(std::span<const std::string> path, StreamCloser closer) override {
    const QuietLog log;
    return DocumentStream(new OutputStream(CreateChild(path, FALSE), &m_isFailed), closer);
  }

  std::vector<std::byte> Finish() override {
    const QuietLog log;
    Close();
    if (m_isFailed) {
      throw log.Failure("libgsf cannot write it");
    }
    const guint8* bytes = gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(m_sink.get()));
    const auto* begin = reinterpret_cast<const std::byte*>(bytes);
    return {begin, begin + gsf_output_size(m_sink.get())};
  }

 private:
  Reference<GsfOutput> CreateChild(std::span<const std::string> path, gboolean isStorage) {
    GsfOutfile* parent = m_storages.at(JoinPath(path.first(path.size() - 1))).get();
    return Reference<GsfOutput>(gsf_outfile_new_child(parent, path.back().c_str(), isStorage));
  }

  void AdoptStorage(const std::string& path, GsfOutfile* storage, const ClassId& classId) {
    m_storages.emplace(path, storage);
    gsf_outfile_msole_set_class_id(GSF_OUTFILE_MSOLE(storage),
                                   reinterpret_cast<const guint8*>(classId.data()));
  }

  /// Storages sort before what they hold; going backwards, the root comes last.
  void Close() {
    for (auto storage = m_storages.rbegin(); storage != m_storages.rend(); ++storage) {
      m_isFailed = gsf_output_close(GSF_OUTPUT(storage->second.get())) == FALSE || m_isFailed;
    }
    m_storages.clear();
  }

  Reference<GsfOutput> m_sink;
  std::map<std::string, Reference<GsfOutfile>> m_storages;
  bool m_isFailed = false;
};

}  // namespace

void CloseStream(IStream* stream) noexcept {
  delete static_cast<GsfStream*>(stream);
}

std::unique_ptr<StorageReader> StorageReader::Open(std::vector<std::byte> file) {
  return std::make_unique<GsfReader>(std::move(file));
}

std::unique_ptr<StorageBuilder> StorageBuilder::Create(const ClassId& rootClassId) {
  return std::make_unique<GsfBuilder>(rootClassId);
}

}  // namespace mqp::host
