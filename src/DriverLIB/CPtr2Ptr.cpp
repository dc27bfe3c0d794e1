#include "DriverLIB/CPtr2Ptr.h"

#include <algorithm>
#include <memory>
#include <utility>

struct CPtr2Ptr::Entry {
  Entry* next = nullptr;
  uint32_t bucket = 0;
  const void* key = nullptr;
  void* value = nullptr;
};

struct CPtr2Ptr::Block {
  Block* next;
  std::unique_ptr<Entry[]> entries;
};

CPtr2Ptr::CPtr2Ptr(uint32_t blockSize) : blockSize_(std::max(blockSize, 1u)) {}

// A subclass that owns its keys empties the map in its own destructor, while FreeKey is still its own.
CPtr2Ptr::~CPtr2Ptr() { RemoveAll(); }

bool CPtr2Ptr::KeysEqual(const void* left, const void* right) const { return left == right; }

uint32_t CPtr2Ptr::HashKey(const void* key) const {
  return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(key)) >> 4;  // heap blocks lie 16 bytes apart
}

const void* CPtr2Ptr::CopyKey(const void* key) const { return key; }

void CPtr2Ptr::FreeKey(const void*) const {}

void CPtr2Ptr::InitHashTable(uint32_t size, bool allocate) {
  RemoveAll();
  bucketCount_ = std::max(size, 1u);
  if (allocate) buckets_ = new Entry*[bucketCount_]();
}

bool CPtr2Ptr::Lookup(const void* key, void*& value) const {
  const Entry* entry = FindEntry(key, BucketOf(key));
  if (!entry) return false;
  value = entry->value;
  return true;
}

void CPtr2Ptr::SetAt(const void* key, void* value) {
  const uint32_t bucket = BucketOf(key);
  if (Entry* entry = FindEntry(key, bucket)) {
    entry->value = value;
    return;
  }
  if (!buckets_) InitHashTable(bucketCount_, true);
  if (!freeList_) AllocateBlock();
  const void* ownKey = key ? CopyKey(key) : nullptr;  // the last step that can fail
  Entry* entry = std::exchange(freeList_, freeList_->next);
  ++entryCount_;
  *entry = {.next = buckets_[bucket], .bucket = bucket, .key = ownKey, .value = value};
  buckets_[bucket] = entry;
}

bool CPtr2Ptr::RemoveKey(const void* key) {
  if (!buckets_) return false;
  for (Entry** link = &buckets_[BucketOf(key)]; *link; link = &(*link)->next) {
    if (!KeysEqual((*link)->key, key)) continue;
    Entry* entry = *link;
    *link = entry->next;
    FreeEntry(entry);
    return true;
  }
  return false;
}

void CPtr2Ptr::RemoveAll() {
  for (uint32_t bucket = 0; buckets_ && bucket < bucketCount_; ++bucket)
    for (Entry* entry = buckets_[bucket]; entry; entry = entry->next) FreeKey(entry->key);
  delete[] std::exchange(buckets_, nullptr);
  entryCount_ = 0;
  freeList_ = nullptr;
  while (blocks_) delete std::exchange(blocks_, blocks_->next);
}

bool CPtr2Ptr::GetNextAssoc(Position& position, const void*& key, void*& value) const {
  const Entry* entry = position == StartPosition() ? FirstEntryFrom(0) : static_cast<const Entry*>(position);
  position = nullptr;
  if (!entry) return false;
  key = entry->key;
  value = entry->value;
  position = entry->next ? entry->next : FirstEntryFrom(entry->bucket + 1);
  return true;
}

CPtr2Ptr::Entry* CPtr2Ptr::FindEntry(const void* key, uint32_t bucket) const {
  if (!buckets_) return nullptr;
  Entry* entry = buckets_[bucket];
  while (entry && !KeysEqual(entry->key, key)) entry = entry->next;
  return entry;
}

// The head of the first chain that is not empty, from `bucket` on.
CPtr2Ptr::Entry* CPtr2Ptr::FirstEntryFrom(uint32_t bucket) const {
  if (!buckets_) return nullptr;
  for (; bucket < bucketCount_; ++bucket)
    if (buckets_[bucket]) return buckets_[bucket];
  return nullptr;
}

// Puts the entries of a fresh block on the free list, the first of the block on top.
void CPtr2Ptr::AllocateBlock() {
  blocks_ = new Block{blocks_, std::make_unique<Entry[]>(blockSize_)};
  for (uint32_t i = blockSize_; i-- > 0;) {
    Entry& entry = blocks_->entries[i];
    entry.next = std::exchange(freeList_, &entry);
  }
}

void CPtr2Ptr::FreeEntry(Entry* entry) {
  FreeKey(std::exchange(entry->key, nullptr));
  entry->next = std::exchange(freeList_, entry);
  if (--entryCount_ == 0) RemoveAll();
}
