// What a Redis has answered, looked at without trust: what isn't there, or is of another kind, is null.
//
//    for ( RedisReply const entry : reply[0][1] ) {
//       entry[0].text();                       // its id
//    }
//
// Threading: a view of what the connection holds while it tells the answer.
#pragma once

#include <cstddef>
#include <hiredis/hiredis.h>
#include <map>
#include <string>
#include <string_view>

namespace Live {

class RedisReply {
 public:
   RedisReply() = default;
   explicit RedisReply( redisReply const * reply ) : reply_( reply ) {}

   bool isThere() const { return reply_ != nullptr; }
   bool isNull() const { return !reply_ || reply_->type == REDIS_REPLY_NIL; }
   bool isError() const { return reply_ && reply_->type == REDIS_REPLY_ERROR; }
   // A list, also an empty one.
   bool isList() const { return reply_ && reply_->type == REDIS_REPLY_ARRAY; }
   // Of a string, a status or an error; empty otherwise.
   std::string_view text() const {
      bool const has = reply_ && ( reply_->type == REDIS_REPLY_STRING || reply_->type == REDIS_REPLY_STATUS ||
                                   reply_->type == REDIS_REPLY_ERROR );
      return has ? std::string_view( reply_->str, reply_->len ) : std::string_view();
   }
   long long number() const { return reply_ && reply_->type == REDIS_REPLY_INTEGER ? reply_->integer : 0; }

   std::size_t size() const { return isList() ? reply_->elements : 0; }
   RedisReply operator[]( std::size_t index ) const {
      return index < size() ? RedisReply( reply_->element[index] ) : RedisReply();
   }

   class Iterator {
    public:
      Iterator( RedisReply const & of, std::size_t at ) : of_( of ), at_( at ) {}
      RedisReply operator*() const { return of_[at_]; }
      Iterator & operator++() {
         ++at_;
         return *this;
      }
      bool operator!=( Iterator const & other ) const { return at_ != other.at_; }

    private:
      RedisReply const & of_;
      std::size_t at_;
   };
   Iterator begin() const { return { *this, 0 }; }
   Iterator end() const { return { *this, size() }; }

 private:
   redisReply const * reply_ = nullptr;
};

// A hash, told as name, text, name, text.
inline std::map< std::string, std::string > attributesOf( RedisReply fields ) {
   std::map< std::string, std::string > attributes;
   for ( std::size_t at = 0; at + 1 < fields.size(); at += 2 ) {
      attributes.emplace( fields[at].text(), fields[at + 1].text() );
   }
   return attributes;
}

} // namespace Live
