#pragma once

#include <cstdint>

// A chained hash map from pointer to pointer. Keys and values belong to the caller; a subclass may own its keys.
//
// Entries come from blocks of `blockSize`, and freed entries are used again. A map that becomes empty gives all its
// memory back and starts afresh.
class CPtr2Ptr {
 public:
  // A place in an iteration: StartPosition() at the beginning, null at the end. Changing the map ends an iteration.
  using Position = void*;
  static Position StartPosition() { return reinterpret_cast<Position>(UINTPTR_MAX); }

  static constexpr uint32_t kDefaultBucketCount = 17;
  static constexpr uint32_t kDefaultBlockSize = 10;

  explicit CPtr2Ptr(uint32_t blockSize = kDefaultBlockSize);
  CPtr2Ptr(const CPtr2Ptr&) = delete;
  CPtr2Ptr& operator=(const CPtr2Ptr&) = delete;
  virtual ~CPtr2Ptr();

  virtual bool KeysEqual(const void* left, const void* right) const;
  virtual uint32_t HashKey(const void* key) const;
  virtual const void* CopyKey(const void* key) const;
  virtual void FreeKey(const void* key) const;

  // Sets the number of buckets, at least 1, and with `allocate` makes them at once. Entries that the map holds go.
  void InitHashTable(uint32_t size, bool allocate);
  uint32_t BucketCount() const { return bucketCount_; }
  bool HasBuckets() const { return buckets_ != nullptr; }
  int Count() const { return entryCount_; }

  bool Lookup(const void* key, void*& value) const;  // leaves `value` alone when there is no such key
  void SetAt(const void* key, void* value);          // inserts or replaces
  bool RemoveKey(const void* key);                   // false when there is no such key
  void RemoveAll();
  // Takes the entry at `position` and moves on: bucket by bucket, in each the newest entry first. False, and nothing
  // taken, when there is none.
  bool GetNextAssoc(Position& position, const void*& key, void*& value) const;

 private:
  struct Entry;
  struct Block;

  uint32_t BucketOf(const void* key) const { return HashKey(key) % bucketCount_; }
  Entry* FindEntry(const void* key, uint32_t bucket) const;
  Entry* FirstEntryFrom(uint32_t bucket) const;
  void AllocateBlock();
  void FreeEntry(Entry* entry);

  Entry** buckets_ = nullptr;
  uint32_t bucketCount_ = kDefaultBucketCount;
  int entryCount_ = 0;
  Entry* freeList_ = nullptr;
  Block* blocks_ = nullptr;
  uint32_t blockSize_;
};
